#include "script/Condition.h"

#include "platform/Failure.h"

namespace fh {

namespace {

ConditionTest& installedTest() {
  static ConditionTest test;
  return test;
}

}  // namespace

// Not yet: conditions on containers arrive with the live world. Until then no answer is made up.
i16 EvalCondition(const QString& condition) {
  throw RuntimeFailure(Failure::InvalidCall,
                       QStringLiteral("Not yet: conditions on containers arrive with the live world: ") + condition);
}

void setConditionTest(ConditionTest test) { installedTest() = std::move(test); }

i16 TestCondition(const QString& condition) {
  const ConditionTest& test = installedTest();
  return test ? test(condition) : EvalCondition(condition);
}

}  // namespace fh
