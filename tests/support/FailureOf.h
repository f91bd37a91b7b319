#pragma once

#include "platform/base/Failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace fh::test {

// The kind of run-time failure that `step` ends in, and its message if asked for; a step that
// doesn't fail is a test failure.
inline Failure failureOf(const std::function<void()>& step, QString* message = nullptr) {
  try {
    step();
  } catch (const RuntimeFailure& failure) {
    if (message) *message = failure.message();
    return failure.kind();
  }
  ADD_FAILURE() << "no failure";
  return Failure::InvalidCall;
}

}  // namespace fh::test
