#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// Text in files is single-byte Western text (Windows-1252). Every byte has a character and back,
// so bytes that were read are written again unchanged, whatever they were.
namespace fh {

QString fromAnsi(QByteArrayView bytes);
// Characters that have no byte become '?'.
QByteArray toAnsi(const QString& text);

}  // namespace fh
