// What makes the start short.
#include "forms/qt/warmUp.h"

#include <QThreadPool>

#ifdef TASMORO_FONTCONFIG
#include <fontconfig/fontconfig.h>

FontScan::FontScan() : thread_([] { FcInit(); }) {}
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
