#pragma once

#include "platform/Values.h"

#include <QString>

#include <functional>

namespace fh {

// Tests "container keyword value" against the live containers: -1 when it holds.
i16 EvalCondition(const QString& condition);

// What an `if` line asks. The game asks EvalCondition; tests of the interpreter put in their own.
using ConditionTest = std::function<i16(const QString&)>;
// Installs `test` for every following `if`; an empty test puts back EvalCondition.
void setConditionTest(ConditionTest test);
// The answer of the installed test.
i16 TestCondition(const QString& condition);

}  // namespace fh
