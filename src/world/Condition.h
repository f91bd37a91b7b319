#pragma once

#include "platform/base/Values.h"

#include <QString>

#include <functional>

namespace fh {

// Tests "container keyword value" against the live containers: -1 when it holds, else 0. The value
// is all behind the second blank. Keywords, in any case: `state` (the number the value starts with,
// 0 for none, equals the container's state), `holds` (the object, lower-cased and without blanks,
// equals the lower-cased value) and `!holds`; any other keyword never holds. Fewer than two blanks,
// or an unknown container, is a run-time failure.
i16 EvalCondition(const QString& condition);

// Tests a condition a line (lines end in CR LF): -1 when all hold. It stops at the first line that
// doesn't; a line end at the very end adds no empty line, but an empty text is one empty condition.
i16 EvalConditions(const QString& conditions);

// The text without any blank.
QString StripBlanks(const QString& text);

// What an `if` line asks. The game asks EvalCondition; tests of the interpreter put in their own.
using ConditionTest = std::function<i16(const QString&)>;
// Installs `test` for every following `if`; an empty test puts back EvalCondition.
void setConditionTest(ConditionTest test);
// The answer of the installed test.
i16 TestCondition(const QString& condition);

}  // namespace fh
