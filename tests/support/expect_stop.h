#pragma once

#include <csignal>
#include <gtest/gtest.h>

/// Expects that a broken invariant stops the program: with this message (a regular expression) and
/// by abort(), not by a crash that happens to come after it.
#define EXPECT_STOP(statement, message) \
  EXPECT_EXIT(statement, testing::KilledBySignal(SIGABRT), message)
