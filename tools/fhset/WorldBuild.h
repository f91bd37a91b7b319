#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

namespace fh {
class cSet;
}

namespace fh::fhset {

// A world built from its text form, or what is wrong with the text.
struct Built {
  std::shared_ptr<cSet> set;  // none when there are problems
  QStringList problems;       // "file:line: sentence", in the order of the lines
};

// Builds the world that the text describes, with its counts taken from its records.
Built buildSet(const QByteArray& text, const QString& fileName);

}  // namespace fh::fhset
