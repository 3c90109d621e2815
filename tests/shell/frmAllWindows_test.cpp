// A sweep over every window: names, accessible names, and that no button or menu item stands there without a command.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMetaMethod>
#include <QSet>

#include "base/dialogs.h"
#include "calendar/frm6Months.h"
#include "calendar/frmMonth.h"
#include "calendar/frmYear.h"
#include "marks/frmColors.h"
#include "marks/frmIconTag.h"
#include "marks/frmIcons.h"
#include "marks/frmMarkers.h"
#include "notes/frmAddFUT.h"
#include "notes/frmEditFUT.h"
#include "notes/frmFUT.h"
#include "notes/frmHelp.h"
#include "notes/frmNoteList.h"
#include "notes/frmNotes.h"
#include "notes/frmPref.h"
#include "notes/frmSearch.h"
#include "notes/frmToDo.h"
#include "reminders/frmAlert.h"
#include "reminders/frmBDay.h"
#include "reminders/frmHolidays.h"
#include "shell/frmMain.h"
#include "tests/support/folder.h"
#include "tools/frmAlarm.h"
#include "tools/frmDateDiff.h"
#include "tools/frmNumDays.h"

namespace {
/// Whether the item is shown and has no command for good.
bool StandsWithoutCommand(const QAction* item) {
    return QStringLiteral(
               "mnuView mnuManageBudget mnuDateFind mnuToolsShowTime mnuOptDateViewAlert mnuDateDiffCYears "
               "mnuDateDiffCMonths mnuDateDiffCWeeks mnuFileSaveAs")
        .split(u' ')
        .contains(item->objectName());
}

/// Whether somebody listens to the signal: the toolkit tells only the object itself.
struct Listened : QAbstractButton {
    static bool to(const QObject* sender, const char* signal) {
        const QMetaObject* type = sender->metaObject();
        return (sender->*&Listened::isSignalConnected)(type->method(type->indexOfSignal(signal)));
    }
};

bool Reacts(const QAbstractButton* button) {
    for (const char* signal : {"clicked(bool)", "toggled(bool)", "pressed()", "released()"})
        if (Listened::to(button, signal)) return true;
    return button->group() != nullptr && Listened::to(button->group(), "idClicked(int)");
}

bool IsOurs(const QWidget* control) {
    return !control->objectName().isEmpty() && !control->objectName().startsWith(QStringLiteral("qt_"));
}

void CheckControls(const Window* window) {
    QSet<QString> seen;
    for (const QWidget* control : window->findChildren<QWidget*>()) {
        if (!IsOurs(control)) continue;
        SCOPED_TRACE(control->objectName().toStdString());
        EXPECT_FALSE(seen.contains(control->objectName())) << "is there twice";
        seen.insert(control->objectName());
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const bool isReached = (control->focusPolicy() & Qt::TabFocus) != 0;
        const bool hasCaption = button != nullptr && !button->text().isEmpty();
        EXPECT_TRUE(!isReached || hasCaption || !control->accessibleName().isEmpty()) << "has no accessible name";
        const bool isPressed = button != nullptr && button->isEnabled() && !button->isCheckable();
        EXPECT_TRUE(!isPressed || Reacts(button)) << "does nothing";
    }
}

void CheckItems(const Window* window) {
    for (const auto* action : window->findChildren<QAction*>()) {
        if (!action->objectName().startsWith(QStringLiteral("mnu")) || action->menu() != nullptr) continue;
        const bool wired = action->property("hasCommand").toBool();
        EXPECT_NE(wired, StandsWithoutCommand(action)) << action->objectName().toStdString();
        EXPECT_TRUE(wired || !action->isEnabled()) << action->objectName().toStdString();
    }
}

template <class W>
void Check() {
    SCOPED_TRACE(W::staticMetaObject.className());
    const TemporaryFolder folder;
    const auto* window = new W;
    EXPECT_EQ(window->objectName(), QLatin1String(W::staticMetaObject.className()));
    CheckControls(window);
    CheckItems(window);
    UnloadAllWindows();
}

template <class... W>
void CheckAll() {
    (Check<W>(), ...);
}

TEST(EveryWindow, NamesItsControlsOnceSpeaksOfThemAndHasACommandBehindEveryButtonAndItem) {
    // What windows say when they open on an empty folder is not what is looked at here.
    SetDialogs({[](const std::string&, Buttons, const std::string&) { return Answer::Ok; },
                [](const std::string&, const std::string&, const std::string&) { return std::nullopt; }});
    CheckAll<frmMain, frmMonth, frm6Months, frmYear, frmColors, frmMarkers, frmIcons, frmIconTag, frmNotes, frmNoteList,
             frmSearch, frmFUT, frmAddFUT, frmEditFUT, frmPref, frmToDo, frmHelp, frmAlert, frmBDay, frmHolidays,
             frmDateDiff, frmNumDays, frmAlarm>();
    SetDialogs({});
}
}  // namespace
