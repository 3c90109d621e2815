// What makes the start short: the work that is begun at once, and the work that is not done.
#pragma once

#include <thread>

/// Keeps the toolkit from dividing painting that is too small for it among threads. Call it before anything else.
void UseFewThreads();

/// Scans the system's fonts beside the making of the application object, which needs most of the time that the scan
/// takes. Make one before the application object; it waits for the scan where it goes out of scope. Where fonts are not
/// scanned at start-up it does nothing.
class FontScan {
  public:
    FontScan();
    FontScan(const FontScan&) = delete;
    FontScan& operator=(const FontScan&) = delete;
    ~FontScan();

  private:
    std::thread thread_;
};
