// The main window's calls.
#include "calendar/modShell.h"

ShellCalls Shell;
