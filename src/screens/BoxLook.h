#pragma once

#include "platform/desktop/Fonts.h"

#include <QLabel>

namespace fh {

// The title of the info box and of the help box: one line of Arial bold 12 points.
inline QLabel* boxTitle(QWidget* box, const QRect& place) {
  auto* title = new QLabel(QStringLiteral("Title"), box);
  title->setObjectName(QStringLiteral("Title"));
  title->setTextFormat(Qt::PlainText);  // titles come from the database and are shown as written
  title->setGeometry(place);
  title->setFont(ArialFont(12, true));
  return title;
}

}  // namespace fh
