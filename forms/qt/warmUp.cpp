// What makes the start short.
#include "forms/qt/warmUp.h"

#include <QThreadPool>
#include <chrono>

#ifdef TASMORO_FONTCONFIG
#include <fontconfig/fontconfig.h>

namespace {
/// The making of the application object begins by loading libraries. A scan at that moment and the loading slow each
/// other down, by a millisecond of processor time together; later it falls into the waiting for the screen's server.
constexpr std::chrono::milliseconds LibrariesFirst(4);
}  // namespace

FontScan::FontScan()
    : thread_([] {
          std::this_thread::sleep_for(LibrariesFirst);
          FcInit();
      }) {}
#else
FontScan::FontScan() = default;
#endif

void UseFewThreads() {
    // The toolkit splits the filling of a scroll bar among as many threads as there are processors.
    QThreadPool::globalInstance()->setMaxThreadCount(1);
}

FontScan::~FontScan() {
    if (thread_.joinable()) thread_.join();
}
