// Saves one file once: what tests/base/kill_saves.sh kills and trips at every system call of the save.
#include <unistd.h>

#include <cstdio>
#include <string>

#include "base/errors.h"
#include "base/files.h"

/// Arguments: the file, a letter and how often it stands in the file. Exits with 0, or 1 after a reported failure.
int main(int, char** arguments) {
    const std::string bytes(std::stoul(arguments[3]), arguments[2][0]);
    getppid();  // from here on the save's own calls are seen in the trace
    try {
        WriteWholeFile(arguments[1], bytes);
    } catch (const Error& error) {
        std::printf("error %d\n", error.number());
        return 1;
    }
    return 0;
}
