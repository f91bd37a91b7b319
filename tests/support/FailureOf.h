#pragma once

#include "platform/base/Failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace fh::test {

// The kind of run-time failure that `step` ends in; a step that doesn't fail is a test failure.
inline Failure failureOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeFailure& failure) {
    return failure.kind();
  }
  ADD_FAILURE() << "no failure";
  return Failure::InvalidCall;
}

}  // namespace fh::test
