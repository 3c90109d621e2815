// What the tests of windows stand on.
#pragma once

#include "forms/qt/window.h"
#include "tests/support/planner.h"

/// A test of windows: those still open are closed after it, unasked.
struct WindowTest : PlannerTest {
    ~WindowTest() override { UnloadAllWindows(); }
};
