// Whole files on disks that work and disks that fail; the guard of what nobody has read.
#include "base/files.h"

#include <chrono>

#include "base/modNoCase.h"
#include "base/state.h"
#include "tests/support/planner.h"

#ifdef __unix__
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {
struct Files : PlannerTest {
    Path at(std::string_view name) const { return folder.path() / name; }
    long entries() const { return std::distance(fs::directory_iterator(folder.path()), {}); }
};
using Guard = Files;
}  // namespace

TEST_F(Files, AreReadIntoLines) {
    using Row = std::pair<std::string, std::vector<std::string_view>>;
    for (const auto& [bytes, lines] :
         {Row{"", {}}, Row{"a\r\nb\r\n", {"a", "b"}}, Row{"a\nb\n", {"a", "b"}},
          Row{"a\nb\r\n\r\n\nc", {"a", "b", "", "", "c"}}, Row{"a\r\nb", {"a", "b"}}, Row{"a\r\nb\r", {"a", "b"}},
          Row{"\r\n", {""}}, Row{"a\rb\r\n", {"a\rb"}}, Row{"a\r\r\n", {"a\r"}},
          Row{"a\0b\r\n\0"s, {std::string_view("a\0b", 3), std::string_view("\0", 1)}}})
        EXPECT_EQ(LinesOf(bytes), lines) << bytes;
}

TEST_F(Files, AreWrittenAsTheyAre) {
    for (const std::string& bytes : {""s, "old\r\n"s, "\0\x1A\xFF\r\n\n"s, std::string(3 << 20, 'x'), "new"s}) {
        WriteWholeFile(at("a.dat"), bytes);
        EXPECT_EQ(ReadWholeFile(at("a.dat")), bytes);
    }
    AppendToFile(at("log"), "one");
    AppendToFile(at("log"), "two");
    EXPECT_EQ(folder.get("log"), "onetwo");
    DeleteFile(at("log"));
    DeleteFile(at("a.dat"));
    DeleteFile(at("a.dat"));
    EXPECT_EQ(entries(), 0);
    MakeFolder(at("2009/deep"));
    MakeFolder(at("2009/deep"));
    EXPECT_TRUE(fs::is_directory(at("2009/deep")));
}

TEST_F(Files, SayWhatIsWrong) {
    const std::function<void(const Path&)> calls[] = {
        [](const Path& path) { ReadWholeFile(path); }, [](const Path& path) { WriteWholeFile(path, "y"); },
        [](const Path& path) { AppendToFile(path, "y"); }, DeleteFile, MakeFolder};
    const std::pair<std::string, std::array<int, 5>> rows[] = {
        {"none", {FileNotFound, 0, 0, 0, 0}},
        {"nowhere/file", {PathNotFound, PathNotFound, PathNotFound, 0, 0}},
        {"file/file", {PathNotFound, PathNotFound, PathNotFound, 0, PathFileAccess}},
        {"folder", {PathFileAccess, PathFileAccess, PathFileAccess, PathFileAccess, 0}},
        {"file", {0, 0, 0, 0, PathFileAccess}},
        {"loop", {PathFileAccess, PathFileAccess, PathFileAccess, 0, PathFileAccess}},
        {"astray", {FileNotFound, PathNotFound, FileNotFound, 0, PathFileAccess}},
        {std::string(300, 'n'), {PathFileAccess, PathFileAccess, PathFileAccess, PathFileAccess, PathFileAccess}}};
    for (const auto& [name, errors] : rows)
        for (std::size_t call = 0; call < 5; ++call) {
            const TemporaryFolder fresh;
            fresh.put("file", "x");
            MakeFolder(fresh.path() / "folder");
            fs::create_symlink("loop", fresh.path() / "loop");
            fs::create_symlink("nowhere/file", fresh.path() / "astray");
            EXPECT_EQ(ErrorOf([&, path = fresh.path() / name] { calls[call](path); }), errors[call]) << name << call;
            for (const auto& entry : fs::directory_iterator(fresh.path()))
                EXPECT_NE(entry.path().extension(), ".tmp") << name << call;
        }
}

#ifdef __unix__
TEST_F(Files, KeepLinksPermissionsAndWaitForNoPipe) {
    folder.put("real/notes", "old");
    fs::create_symlink("real/notes", at("link"));
    fs::create_symlink(at("link"), at("link to link"));
    fs::create_symlink("real/new", at("link to none"));
    WriteWholeFile(at("link to link"), "new");
    WriteWholeFile(at("link to none"), "made");
    EXPECT_TRUE(fs::is_symlink(at("link to link")) && fs::is_symlink(at("link to none")));
    EXPECT_EQ(folder.get("real/notes") + folder.get("real/new"), "newmade");
    for (const auto& [before, after] : {std::pair{0600u, 0600u}, {0664u, 0664u}, {0444u, 0644u}, {0u, 0200u}}) {
        fs::permissions(at("real/notes"), fs::perms(before));
        WriteWholeFile(at("real/notes"), "again");
        EXPECT_EQ(fs::status(at("real/notes")).permissions(), fs::perms(after)) << before;
    }
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(at("pipe")); }), PathFileAccess);
    EXPECT_NE(ErrorOf([&] { AppendToFile(at("pipe"), "x"); }), 0);
}
#endif

TEST_F(Files, LeftoversOfKilledSavesAreRemovedWhenOld) {
    for (const auto& [name, minutes, stays] :
         {std::tuple{"~save-1.tmp", 50, true}, std::tuple{"~save-2.tmp", 70, false},
          std::tuple{"save-3.tmp", 700, true}}) {
        folder.put(name, "half a file, or somebody's own");
        fs::last_write_time(at(name), fs::file_time_type::clock::now() - std::chrono::minutes(minutes));
        WriteWholeFile(at("a.dat"), "a");
        EXPECT_EQ(folder.has(name), stays) << name;
    }
}

#ifdef __linux__
TEST_F(Files, StayWholeWhenTheDiskIsFull) {
    const std::string old(5000, 'o');
    const std::string longer(100000, 'n');
    folder.put("a.dat", old);
    folder.put("log", old);
    for (std::uint64_t size = 0; size < longer.size(); size += 1237) {
        const FileSizeLimit limit(size);
        EXPECT_EQ(ErrorOf([&] { WriteWholeFile(at("a.dat"), longer); }), DiskFull) << size;
        EXPECT_EQ(ErrorOf([&] { AppendToFile(at("log"), longer); }), DiskFull) << size;
    }
    EXPECT_TRUE(folder.get("a.dat") == old && folder.get("log") == old);
    EXPECT_EQ(entries(), 2);

    const MemoryDisk disk(folder.path(), "size=64k");
    if (!disk.mounted()) GTEST_SKIP() << "a small disk can be mounted by root only";
    WriteWholeFile(at("a.dat"), old);
    int refused = 0;
    for (std::size_t size = 1000; size <= longer.size(); size += 1000) {
        const std::string before = folder.get("a.dat");
        const std::string bytes(size, static_cast<char>('a' + size / 1000 % 26));
        const int error = ErrorOf([&] { WriteWholeFile(at("a.dat"), bytes); });
        refused += error == DiskFull;
        EXPECT_TRUE(folder.get("a.dat") == (error == 0 ? bytes : before)) << size;
    }
    EXPECT_GT(refused, 40);
    EXPECT_EQ(entries(), 1);
}

TEST_F(Files, OfAReadOnlyDiskAreRefusedAndStay) {
    MemoryDisk disk(folder.path(), "size=64k");
    if (!disk.mounted()) GTEST_SKIP() << "a read-only disk can be mounted by root only";
    folder.put("a.dat", "old");
    ASSERT_TRUE(disk.makeReadOnly());
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(at("a.dat"), "new"); }), PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { AppendToFile(at("a.dat"), "new"); }), PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { DeleteFile(at("a.dat")); }), PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { MakeFolder(at("2009")); }), PathFileAccess);
    EXPECT_EQ(ErrorOf([&] { SaveDataFile(at("a.dat"), "new"); }), PathFileAccess) << "was not read: no copy, no save";
    EXPECT_EQ(folder.get("a.dat"), "old");
}
#endif

TEST_F(Files, AreFoundIgnoringCase) {
    folder.put("ALERTS.dat", "x");
    folder.put("\xC3\x84rger.fut", "x");  // in UTF-8, as the disk has it
    MakeFolder(at("backup"));
    EXPECT_EQ(DataPath("Alerts.dat"), at("ALERTS.dat"));
    EXPECT_EQ(DataPath("None.dat"), at("None.dat"));
    EXPECT_EQ(PathInFolder(folder.path(), "\xE4RGER.fut").filename(), fs::path(u8"Ärger.fut"));
    EXPECT_TRUE(FileExists(folder.path(), "alerts.DAT") && !FileExists(folder.path(), "backup"));
    EXPECT_TRUE(FolderExists(folder.path(), "Backup") && !FolderExists(folder.path(), "Alerts.dat"));
    EXPECT_FALSE(FileExists(at("none"), "alerts.dat"));
    dialogs.expect(
        "Error encountered during Events Folder check.\r\nError Number: 76\r\nError Description: Path not found");
    EXPECT_FALSE(FolderExists(at("none"), "2009"));
}

// -- The guard ----------------------------------------------------------------------------------------------------

TEST_F(Guard, KeepsWhatWasNotReadToItsEnd) {
    const std::string bytes = "one\r\nbad\r\nthree\r\n";
    const auto readAll = [this] { ReadDataLines(at("a.dat"), [](std::string_view, int) {}); };
    const auto fail = [this] {
        ReadDataLines(at("a.dat"), [](std::string_view line, int number) {
            if (line == "bad") throw Error(number + 100);
        });
    };
    const auto faulty = [&] { EXPECT_EQ(ErrorOf(fail), 102); };
    const std::tuple<const char*, std::function<void()>, bool> rows[] = {
        {"read", readAll, false},
        {"never read", [] {}, true},
        {"a bad line", faulty, true},
        {"read, then a bad line", [&] { readAll(), faulty(); }, true},
        {"a line passed over", [&] { readAll(), MarkNotFullyRead(at("a.dat")); }, true},
        {"read, then changed by somebody", [&] { readAll(), folder.put("a.dat", "ONE\r\nbad\r\nthree\r\n"); }, true},
        {"read, tables cleared", [&] { readAll(), ClearAllState(); }, true},
        {"deleted by somebody", [&] { readAll(), fs::remove(at("a.dat")); }, false},
        {"what is to be saved already", [&] { folder.put("a.dat", "saved"); }, false},
        {"empty", [&] { folder.put("a.dat", ""); }, false}};
    for (const auto& [name, before, kept] : rows) {
        SCOPED_TRACE(name);
        const TemporaryFolder fresh;
        SetDataFolder(folder.path());
        fs::remove_all(at("Backup"));
        folder.put("a.dat", bytes);
        before();
        const std::string unread = folder.get("a.dat");
        const std::string told = SaveDataFile(at("a.dat"), "saved");
        EXPECT_EQ(folder.backups(), kept ? unread : "");
        EXPECT_EQ(told, kept ? "The file \"a.dat\" as it was before is kept as \"a 2026-11-22 19-39-05.dat\" in the "
                               "folder \"Backup\"."
                             : "");
        EXPECT_EQ(folder.get("a.dat"), "saved");
        EXPECT_EQ(SaveDataFile(at("a.dat"), "again"), "");
    }
}

TEST_F(Guard, SeesEveryByteThatSomebodyElseChanged) {
    const std::string saved(200'000, 'x');
    for (const std::size_t at : {0u, 65'535u, 65'536u, 199'999u}) {
        SaveDataFile(this->at("a.dat"), saved);
        EXPECT_EQ(SaveDataFile(this->at("a.dat"), saved + "y"), "");
        SaveDataFile(this->at("a.dat"), saved);
        std::string changed = saved;
        changed[at] = 'z';
        folder.put("a.dat", changed);
        EXPECT_NE(SaveDataFile(this->at("a.dat"), "new"), "") << at;
        EXPECT_EQ(folder.backups(), changed) << at;
        fs::remove_all(this->at("Backup"));
    }
}

TEST_F(Guard, NeverCopiesOverAnEarlierCopy) {
    const std::string stamp = " 2026-11-22 19-39-05";
    for (const char* bytes : {"1", "2", "3"}) {
        folder.put("2009/Notes.dat", bytes);
        EXPECT_NE(SaveDataFile(YearFolder(2009) / "Notes.dat", "saved"), "");
    }
    folder.put("2010/Notes.dat", "4");
    EXPECT_NE(DeleteDataFile(YearFolder(2010) / "Notes.dat"), "");
    EXPECT_FALSE(folder.has("2010/Notes.dat"));
    EXPECT_EQ(folder.get("Backup/2009 Notes" + stamp + ".dat"), "1");
    EXPECT_EQ(folder.get("Backup/2009 Notes" + stamp + " 2.dat"), "2");
    EXPECT_EQ(folder.get("Backup/2009 Notes" + stamp + " 3.dat"), "3");
    EXPECT_EQ(folder.get("Backup/2010 Notes" + stamp + ".dat"), "4");
}

TEST_F(Guard, RefusesTheSaveWhenTheCopyFails) {
    folder.put("a.dat", "unread");
    folder.put("Backup", "a file where the folder should be");
    for (const auto& change : {+[](const Path& path) { return SaveDataFile(path, "new"); },
                               +[](const Path& path) { return DeleteDataFile(path); }}) {
        std::string told;
        EXPECT_EQ(ErrorOf([&] { change(at("a.dat")); }, &told), PathFileAccess);
        EXPECT_NE(told.find("\"a.dat\" could not be copied to \"Backup\""), std::string::npos);
        EXPECT_EQ(folder.get("a.dat"), "unread");
    }
}

TEST_F(Guard, TellsOfTheCopyAlsoWhenTheSaveFails) {
    folder.put("a.dat", "unread");
    const auto write = Disk().write;
    SetDisk({{}, [write](const Path& path, std::string_view bytes) {
                 if (path.filename() == "a.dat") throw Error(DiskFull);
                 write(path, bytes);
             }});
    std::string told;
    EXPECT_EQ(ErrorOf([&] { SaveDataFile(at("a.dat"), "new"); }, &told), DiskFull);
    EXPECT_NE(told.find("Disk full\r\nThe file \"a.dat\" as it was"), std::string::npos);
    SetDisk({});
    EXPECT_EQ(SaveDataFile(at("a.dat"), "new"), "") << "the copy is there already";
    EXPECT_EQ(folder.backups(), "unread");
}
