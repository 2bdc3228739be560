// googletest's hook for a platform of one's own. Its Notification needs std::mutex, which the win32 thread model of
// mingw-w64 lacks; nothing here starts threads through googletest, so a spinning flag does.
#pragma once

#include <atomic>

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
  public:
    void Notify() { Notified = true; }
    void WaitForNotification() const {
        while (!Notified) {
        }
    }

  private:
    std::atomic<bool> Notified = false;
};

}  // namespace testing::internal
