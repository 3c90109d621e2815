// The main window's menu table: name, caption, parent, command.
#include "base/dialogs.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "marks/frmColors.h"
#include "marks/frmIcons.h"
#include "marks/frmMarkers.h"
#include "marks/modCategories.h"
#include "marks/modHoverText.h"
#include "marks/modIcons.h"
#include "marks/modMarkCommands.h"
#include "marks/modMarkerDisplay.h"
#include "marks/modPrint.h"
#include "notes/frmFUT.h"
#include "notes/frmHelp.h"
#include "notes/frmNoteList.h"
#include "notes/frmPref.h"
#include "notes/frmSearch.h"
#include "notes/frmToDo.h"
#include "reminders/frmAlert.h"
#include "reminders/frmBDay.h"
#include "reminders/frmHolidays.h"
#include "shell/frmMain.h"
#include "shell/modPreferences.h"
#include "shell/modShortcuts.h"
#include "shell/modStart.h"
#include "tools/frmAlarm.h"
#include "tools/frmDateDiff.h"
#include "tools/frmNumDays.h"

namespace {
using Table = std::vector<MenuItem>;

/// The caption a category has until the user's are read.
const char* DefaultCaption(int category) {
    static const CategoryState defaults;
    return defaults.caption.at(static_cast<std::size_t>(category)).c_str();
}

void Append(Table& table, const Table& more) { table.insert(table.end(), more.begin(), more.end()); }

Table FileItems() {
    return {
        Without("mnuFile", "&File", ""),
        With("mnuFileCreateTemplate", "&Create/Modify 1 Month Calendar Template", "mnuFile", CreateOrModifyTemplate),
        Without("mnuFileSave", "&Save", "mnuFile"),
        With("mnuFileSaveTemplate", "Save 1 Month Calendar Template", "mnuFileSave", [] { SaveTemplateIcons(); }),
        With("mnuFileSaveCalendar", "Save This Month's Icons", "mnuFileSave", [] { Save1MonthIcons(); }),
        With("mnuFilePrintCalendar", "&Print 1 Month Calendar", "mnuFile", mnuFilePrintCalendar_Click),
        With("mnuFilePrintCalendarNoIcons", "Print 1 Month Calendar &Without Icons", "mnuFile",
             mnuFilePrintCalendarNoIcons_Click),
        With("mnuFileOpenFUT", "Open &Frequently Used Terms", "mnuFile", [] { OpenTermsWindow(true); }),
    };
}

Table EditItems() {
    Table table{
        Without("mnuEdit", "&Edit", ""),
        With(
            "mnuEditFind", "&Find", "mnuEdit", [] { ShowWindow<frmSearch>(); }, QKeySequence::Find),
        With("mnuEditDeleteMarks", "Delete this Years Marks", "mnuEdit", DeleteThisYearsMarks),
        Without("mnuEditDiplayedMarks", "Displayed Marks", "mnuEdit"),
        With("mnuEditMarksHideAll", "Hide (Uncheck) All Marks", "mnuEditDiplayedMarks", HideAllMarks),
        With("mnuEditMarksShowAll", "Show (Check) All Marks", "mnuEditDiplayedMarks", ShowAllMarks),
    };
    // The forms' own captions and order; the user's captions replace them when the categories are read.
    for (const int category : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 10, 11}) {
        const std::string name = "mnuEditMark(" + std::to_string(category) + ")";
        table.push_back(Check(name.c_str(), DefaultCaption(category), "mnuEditDiplayedMarks", [category] {
            ShowCategory(category, MarkerHidden[static_cast<std::size_t>(category)]);
        }));
    }
    table.push_back(
        With("mnuEditMarkerSaveSettings", "Save the Above Settings", "mnuEditDiplayedMarks", SaveDisplaySetting));
    return table;
}

Table CalendarItems() {
    return {
        Without("mnuCal", "Calendar &View", ""),
        With(
            "mnuCalOneMonth", "Show 1 Month Calendar", "mnuCal", [] { ShowViewOfPickers("mnuCalOneMonth_Click", 1); },
            QKeySequence(QStringLiteral("Ctrl+1"))),
        With(
            "mnuCalSixMonths", "Show 6 Month Calendar", "mnuCal", [] { ShowViewOfPickers("mnuCalSixMonths_Click", 6); },
            QKeySequence(QStringLiteral("Ctrl+2"))),
        With(
            "mnuCalOneYear", "Show 1 Year Calendar", "mnuCal", [] { ShowViewOfPickers("mnuCalOneYear_Click", 12); },
            QKeySequence(QStringLiteral("Ctrl+3"))),
    };
}

Table DateItems() {
    Table table{
        Without("mnuDateOptions", "&Date Options", "mnuOptions"),
        With("mnuOptDateQuickMark", "Quick Mark Selected Date", "mnuDateOptions", QuickMarkSelectedDate,
             QKeySequence(QStringLiteral("Ctrl+M"))),
        Without("mnuOptDateMark", "Mark Selected Date as...", "mnuDateOptions"),
    };
    for (int index = 0; index < 12; ++index) {
        const std::string name = "mnuOptDateMarkAs(" + std::to_string(index) + ")";
        table.push_back(With(name.c_str(), DefaultCaption(index < 10 ? index : index + 2), "mnuOptDateMark",
                             [index] { MarkSelectedDateAs(index); }));
    }
    Append(
        table,
        {
            With("mnuOptDateClearMark", "Clear Mark from Selected Date", "mnuDateOptions", ClearMarkFromSelectedDate),
            With("mnuOptDateAttachHoverText", "Attach Mouse Over (Hover) Note", "mnuDateOptions", AttachHoverText),
            With("mnuOptDateOpenNotes", "Open Notes for Selected Date", "mnuDateOptions",
                 [] { OpenNotesOfPickers("mnuOptDateOpenNotes_Click"); }),
            With("mnuOptDateSetAlert", "Set Alert for Selected Date", "mnuDateOptions",
                 [] { OpenAlertManagerFor(SelectedDate); }),
            Without("mnuOptDateViewAlert", "View Alert for Selected Date", "mnuDateOptions"),
            With("mnuOptDateShowIcons", "View Insertable Icons", "mnuDateOptions", ShowPaletteForMonth),
            With("mnuOptDateRemoveIcon", "Remove Selected Icon", "mnuDateOptions", RemoveSelectedIcon),
            With("mnuOptDateRemoveAll", "Remove All Icons", "mnuDateOptions", RemoveAllIcons),
        });
    return table;
}

Table OptionItems() {
    Table table{
        Without("mnuOptions", "&Options", ""),
        Without("mnuOptionsUser", "&User Options", "mnuOptions"),
        With("mnuOptNetworkShare", "Change Network Share Drive", "mnuOptionsUser", ChangeNetworkShare),
        With("mnuOptUserShowFUTPref", "Change Frequently Used Terms Options", "mnuOptionsUser",
             [] { ShowWindow<frmPref>(); }),
        With("mnuOptCreateShortcut", "Create Shortcut for this Program", "mnuOptionsUser", CreateShortcuts),
    };
    Append(table, DateItems());
    Append(table, {Without("mnuOptCal", "Calendar Options", "mnuOptions"),
                   Check("mnuOptCalNumbersOffset", "Show Numbers Offset", "mnuOptCal",
                         [] { ShowNumbersOffset(!Paint.numbersOffset); })});
    return table;
}

Table ManageItems() {
    return {
        Without("mnuManage", "&Manage", ""),
        With("mnuManageAlerts", "Alerts", "mnuManage", [] { OpenAlertManager(false); }),
        With("mnuManageNotes", "Notes", "mnuManage", [] { ShowWindow<frmNoteList>(); }),
        With("mnuManageToDo", "To Do List", "mnuManage", OpenToDoList),
        With("mnuManageHolidays", "Holidays", "mnuManage", [] { ShowWindow<frmHolidays>(); }),
        With("mnuManageBDays", "Birthdays", "mnuManage", [] { ShowWindow<frmBDay>(); }),
        With("mnuManageIcons", "Insertable Icons", "mnuManage", ShowPaletteWindow),
        Without("mnuManageFUT", "Frequently Used Terms", "mnuManage"),
        With("mnuManageFUTList", "Edit List", "mnuManageFUT", [] { OpenTermsWindow(true); }),
        With("mnuManageFUTPreferences", "Edit Preferences", "mnuManageFUT", [] { ShowWindow<frmPref>(); }),
        Without("mnuManageBudget", "Monthly Budget", "mnuManage"),
        Without("mnuManageMarkers", "Date Markers", "mnuManage"),
        With("mnuManageDisplayedMarks", "Select Markers to Display and Hide", "mnuManageMarkers",
             [] { ShowWindow<frmMarkers>(); }),
        With("mnuManageUserColors", "Select Colors and Captions for Markers", "mnuManageMarkers",
             [] { ShowWindow<frmColors>(); }),
        Without("mnuView", "&View", ""),
    };
}

Table DateFunctionItems() {
    return {
        Without("mnuDFunc", "&Date Functions", ""),
        Without("mnuDateFind", "Find a Date", "mnuDFunc"),
        Without("mnuDateDiff", "Get Time Interval Between 2 Dates", "mnuDFunc"),
        Without("mnuDateDiffS", "Using Standard Intervals", "mnuDateDiff"),
        With("mnuDateDiffSYears", "In Years", "mnuDateDiffS", [] { OpenDateDiff("Years"); }),
        With("mnuDateDiffSQuarters", "In Quarters", "mnuDateDiffS", [] { OpenDateDiff("Quarters"); }),
        With("mnuDateDiffSMonths", "In Months", "mnuDateDiffS", [] { OpenDateDiff("Months"); }),
        With("mnuDateDiffSWeeks", "In Weeks", "mnuDateDiffS", [] { OpenDateDiff("Weeks"); }),
        With("mnuDateDiffSDays", "In Days", "mnuDateDiffS", [] { OpenDateDiff("Days"); }),
        With("mnuDateDiffSHours", "In Hours", "mnuDateDiffS", [] { OpenDateDiff("Hours"); }),
        With("mnuDateDiffSMinutes", "In Minutes", "mnuDateDiffS", [] { OpenDateDiff("Minutes"); }),
        With("mnuDateDiffSSeconds", "In Seconds", "mnuDateDiffS", [] { OpenDateDiff("Seconds"); }),
        Without("mnuDateDiffC", "Using Calendar Intervals", "mnuDateDiff"),
        Without("mnuDateDiffCYears", "In Calendar Years", "mnuDateDiffC"),
        Without("mnuDateDiffCMonths", "In Calendar Months", "mnuDateDiffC"),
        Without("mnuDateDiffCWeeks", "In Calendar Weeks", "mnuDateDiffC"),
        Without("mnuDFuncOther", "Other Functions", "mnuDFunc"),
        With("mnuNumOfDays", "# of Specific Weekdays in a Period", "mnuDFuncOther", [] { ShowWindow<frmNumDays>(); }),
    };
}

Table ToolAndHelpItems() {
    return {
        Without("mnuTools", "&Tools", ""),
        With("mnuToolsAlarm", "Alarm Clock", "mnuTools", OpenAlarm),
        Without("mnuToolsShowTime", "Show Time of Day", "mnuTools"),
        Without("mnuHelp", "&Help", ""),
        With("mnuHelpContents", "Help Contents", "mnuHelp", OpenHelp, QKeySequence(QKeySequence::HelpContents)),
        With("mnuHelpSoftwareVersion", "Get Software Version", "mnuHelp", [] { ShowMessage(SoftwareVersion()); }),
    };
}
}  // namespace

std::vector<MenuItem> MainMenuTable() {
    Table table;
    for (const Table& part : {FileItems(), EditItems(), CalendarItems(), OptionItems(), ManageItems(),
                              DateFunctionItems(), ToolAndHelpItems()})
        Append(table, part);
    return table;
}
