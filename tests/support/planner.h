// What most tests share: a fresh planner with scripted boxes, the errors of calls, tables in one text, files cut short.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "tests/support/dialogs.h"
#include "tests/support/disk.h"
#include "tests/support/folder.h"

/// A test with a data folder of its own, in which every box must have been expected.
struct PlannerTest : testing::Test {
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
