// What most tests share: a fresh planner with scripted boxes, the errors of calls, tables in one text, files cut short.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "base/diskio.h"
#include "base/errors.h"
#include "base/text.h"
#include "calendar/modCalendar.h"
#include "tests/support/dialogs.h"
#include "tests/support/disk.h"
#include "tests/support/folder.h"

/// The bytes of a file, a part of the report that reading it gives ("" for none), and how many of its records are read.
struct FaultyFile {
    std::string bytes;
    const char* report;
    int read;
};

/// A test with a data folder of its own, in which every box must have been expected.
struct PlannerTest : testing::Test {
    /// Reads each file in a folder of its own by read(), which answers the records in effect, and overwrites it by
    /// save(): it must be kept in "Backup" to the byte. `name` is the file's.
    template <class Read, class Save>
    void expectKept(const std::string& name, const std::vector<FaultyFile>& files, Read read, Save save) {
        for (const FaultyFile& file : files) {
            SCOPED_TRACE(file.bytes);
            const TemporaryFolder fresh;
            fresh.put(name, file.bytes);
            if (*file.report != '\0') dialogs.expect(file.report);
            EXPECT_EQ(read(), file.read);
            EXPECT_TRUE(save());
            EXPECT_EQ(fresh.backups(), file.bytes);
            dialogs.verify();
        }
    }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
};

/// The number of the error that the call throws, 0 if it throws none; its description too where a place is given.
template <class Call>
int ErrorOf(Call call, std::string* description = nullptr) {
    try {
        call();
    } catch (const Error& error) {
        if (description != nullptr) *description = error.what();
        return error.number();
    }
    return 0;
}

/// The pieces of the text between its "|".
std::vector<std::string> Pieces(std::string_view text);

/// The line that a cut leaves without its end; "" where there is none.
inline std::string LastLine(const std::string& cut) {
    return cut.substr(cut.rfind('\n') + 1, cut.ends_with('\r') ? cut.size() - cut.rfind('\n') - 2 : cut.npos);
}

/// Calls test(cut, folder) with every beginning of the bytes, each with a fresh folder on an unsynced disk.
template <class Test>
void ForEachCut(const std::string& bytes, Test test) {
    const UnsyncedDisk quick;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE("cut after " + std::to_string(length) + " bytes");
        const TemporaryFolder fresh;
        test(bytes.substr(0, length), fresh);
    }
}
