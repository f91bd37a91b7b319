#pragma once

#include <QString>
#include <QStringView>

#include <optional>

// How a text of the world stands in the text form: as it is after its key when it can, otherwise in
// double quotes with escapes (\\, \" and \xHH for a byte of the set file).
namespace fh::fhset {

// The text as it is written after its key.
QString writeValue(const QString& text);
// The text in double quotes, escaped, even where it need not be.
QString quoteValue(const QString& text);

// The text that a value written after a key stands for, or the reason it is not one.
struct ReadValue {
  QString text;
  QString problem;  // empty when the value is good
};
ReadValue readValue(QStringView written);

}  // namespace fh::fhset
