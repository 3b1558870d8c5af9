#pragma once

namespace veyruna::tests {

/// How long a test waits for what must come, in milliseconds: so long that only what never comes
/// fails.
constexpr int patienceMilliseconds = 60'000;

/// From now on a test of this program that runs longer than VEYRUNA_PATIENCE seconds (120 where the
/// variable is not set or no whole number; 0: as long as it likes) is taken for hanging: the
/// program names it and ends by SIGALRM. Each test has the whole time, so that a slow machine is
/// not taken for a hang. To be called after InitGoogleTest.
void endTestsThatHang();

}  // namespace veyruna::tests
