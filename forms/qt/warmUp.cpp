// What the program would wait for later, begun at once.
#include "forms/qt/warmUp.h"

#ifdef TASMORO_FONTCONFIG
#include <fontconfig/fontconfig.h>

FontScan::FontScan() : thread_([] { FcInit(); }) {}
#else
FontScan::FontScan() = default;
#endif

FontScan::~FontScan() {
    if (thread_.joinable()) thread_.join();
}
