// A program that is killed while its user works loses at most the work of ten seconds.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <random>
#include <string>

#include "base/Paths.h"
#include "files/RecoveryCopy.h"
#include "support/TempFolder.h"

namespace orvik {
namespace {

constexpr int kKills = 300;
constexpr int kMostLost = 10;  // seconds of work
constexpr int kLastStep = 3600;

// How far the user has come: seconds of work, the same number for both processes.
class SharedSteps {
 public:
  SharedSteps()
      : steps_(new (mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                         MAP_SHARED | MAP_ANONYMOUS, -1, 0)) std::atomic<int>(0)) {}
  SharedSteps(const SharedSteps&) = delete;
  SharedSteps& operator=(const SharedSteps&) = delete;
  ~SharedSteps() { munmap(steps_, sizeof(*steps_)); }

  std::atomic<int>& operator*() const { return *steps_; }

 private:
  std::atomic<int>* steps_;
};

// A user who types one line in each second of a clock that runs as fast as the machine.
[[noreturn]] void Work(const std::string& folder, std::atomic<int>& steps) {
  int second = 0;
  RecoveryCopy copy(folder, [&] {
    return ClockTime{{2026, 3, 14}, second / 3600, second / 60 % 60, second % 60};
  });
  for (second = 1; second <= kLastStep; ++second) {
    if (copy.IsDue()) copy.Write("line " + std::to_string(second), "");
    steps = second;
  }
  for (;;) pause();
}

TEST(KilledWindow, LosesAtMostTenSecondsOfWorkAtThreeHundredMoments) {
  const test::TempFolder folder;
  const std::string copies = WithEndingSeparator(folder / "Recovery");
  std::mt19937 random(12);
  int worst = 0;
  int withoutCopy = 0;
  for (int kill = 0; kill < kKills; ++kill) {
    const SharedSteps steps;
    const pid_t user = fork();
    ASSERT_GE(user, 0);
    if (user == 0) Work(copies, *steps);
    const int moment = static_cast<int>(random() % 60);
    while (*steps < moment) {
    }
    for (auto turns = random() % 300000; turns > 0; --turns)
      std::atomic_signal_fence(std::memory_order_seq_cst);
    ::kill(user, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(user, &status, 0), user);
    ASSERT_TRUE(WIFSIGNALED(status));
    const int done = *steps;
    RecoveryCopy next(copies, [] { return ClockTime{{2026, 3, 15}, 0, 0, 0}; });
    const auto offers = next.Offers();
    ASSERT_LE(offers.size(), 1U);
    const int kept = offers.empty() ? 0 : std::stoi(offers[0].text.substr(5));
    worst = std::max(worst, done - kept);
    withoutCopy += offers.empty() ? 1 : 0;
    if (!offers.empty()) next.Discard(offers[0].id);
  }
  RecordProperty("worst", worst);
  RecordProperty("withoutCopy", withoutCopy);
  EXPECT_LE(worst, kMostLost);
}

}  // namespace
}  // namespace orvik
