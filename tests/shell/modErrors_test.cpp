// Error reports: the box and the log.
#include "shell/modErrors.h"

#include "tests/support/planner.h"

namespace {
struct ErrorReports : PlannerTest {};
constexpr const char* Refused = "Error writing to Error.log.";
}  // namespace

TEST_F(ErrorReports, AreShownAndAppendedToTheLogWithoutReadingOrReplacingIt) {
    folder.put("error.LOG", "old ");
    const auto forbidden = [](auto&&...) -> std::string { throw std::logic_error("called"); };
    SetDisk({.read = forbidden, .write = forbidden, .remove = forbidden});
    const std::string first =
        "11/22/2026 7:39:05 PM\r\nAn error occurred in ReadAlerts.\r\nError Number: 13\r\n"
        "Error Description: Type mismatch\r\n\r\n";
    const std::string second =
        "11/22/2026 7:39:05 PM\r\nAn error occurred in Show1MonthCalendar.\r\nError Number: 57\r\n"
        "Error Description: h\xF6her\r\n\r\n";
    dialogs.expect("ReadAlerts");
    dialogs.expect("Show1MonthCalendar");
    EXPECT_FALSE(Reporting("ReadAlerts", [] { throw Error(TypeMismatch); }));
    EXPECT_FALSE(Reporting("Show1MonthCalendar", [] { throw std::runtime_error("höher"); }));  // the system's, in UTF-8
    SetDisk({});
    EXPECT_EQ(folder.get("error.LOG"), "old " + first + second);
    EXPECT_EQ(dialogs.shown().front().title + dialogs.shown().front().text, "Program Error" + first);
    EXPECT_TRUE(Reporting("Nothing", [] {}));
}

TEST_F(ErrorReports, EndWhereTheLogIsFull) {
    for (const std::size_t size : {32765u, 32766u, 32767u, 40000u}) {
        const std::string before(size, 'e');
        folder.put("Error.log", before);
        if (size > 32766) dialogs.expect(Refused);
        WriteErrorLog("report");
        dialogs.verify();
        EXPECT_EQ(folder.get("Error.log"), size > 32766 ? before : before + "report") << size;
    }
    EXPECT_EQ(dialogs.shown().back().title, "Tasmoro");
}

TEST_F(ErrorReports, ShowBothMessagesWhereNothingCanBeWritten) {
    const auto report = [&] {
        dialogs.expect("An error occurred in ReadAlerts.");
        dialogs.expect(Refused);
        ReportError("ReadAlerts", 53, "File not found");
    };
    std::filesystem::create_directory(folder.path() / "Error.log");
    report();
#ifdef __linux__
    std::filesystem::remove(folder.path() / "Error.log");
    MemoryDisk disk(folder.path(), "size=64k");
    if (!disk.makeReadOnly()) GTEST_SKIP() << "a read-only disk can be mounted by root only";
    report();
    EXPECT_FALSE(folder.has("Error.log"));
#endif
}
