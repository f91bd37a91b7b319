#pragma once

#include "platform/base/Values.h"

#include <QString>
#include <QStringList>

// How a home checkup question is numbered and laid out on the printout. The layout is by character
// counts and guards against nothing: a question that doesn't fit fails as an Invalid procedure call,
// so the question data must keep within it (fhworld check tells authors when it doesn't).
namespace fh {

// The question's number as shown and printed: "7", or "12b" for part 2 of question 12.
QString CheckupNumberText(i16 number, i16 subNumber);

// "Question " and the number text right-aligned in three places: "Question   7", "Question 12b".
QString CheckupLabel(const QString& numberText);

// The question's text as printed behind its label, one piece a printed line, the last padded to 55
// characters so that the answers stand in one column. A text longer than 50 characters is broken
// once, at its last blank at or before the 50th character, and the rest goes behind 14 blanks.
QStringList CheckupTextLines(const QString& text);

}  // namespace fh
