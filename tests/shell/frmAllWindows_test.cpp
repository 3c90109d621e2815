// A sweep over every window: names, accessible names, and that no button or menu item stands there without a command.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMetaMethod>
#include <QSet>
#include <functional>

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
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"
#include "tools/frmAlarm.h"
#include "tools/frmDateDiff.h"
#include "tools/frmNumDays.h"

namespace {
struct Case {
    const char* name;
    std::function<Window*()> make;
};

void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

template <class... W>
std::vector<Case> Cases() {
    return {{W::staticMetaObject.className(), [] { return static_cast<Window*>(new W); }}...};
}
const auto AllWindows = Cases<frmMain, frmMonth, frm6Months, frmYear, frmColors, frmMarkers, frmIcons, frmIconTag,
                              frmNotes, frmNoteList, frmSearch, frmFUT, frmAddFUT, frmEditFUT, frmPref, frmToDo,
                              frmHelp, frmAlert, frmBDay, frmHolidays, frmDateDiff, frmNumDays, frmAlarm>;

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

class EveryWindow : public testing::TestWithParam<Case> {
  protected:
    EveryWindow() {
        // What windows say when they open on an empty folder is not what is looked at here.
        SetDialogs({[](const std::string&, Buttons, const std::string&) { return Answer::Ok; },
                    [](const std::string&, const std::string&, const std::string&) { return std::nullopt; }});
        window_ = GetParam().make();
    }
    ~EveryWindow() override {
        UnloadAllWindows();
        SetDialogs({});
    }

    TemporaryFolder folder_;
    Window* window_ = nullptr;
};

TEST_P(EveryWindow, NamesItsControlsOnce) {
    EXPECT_EQ(window_->objectName().toStdString(), GetParam().name);
    QSet<QString> seen;
    for (const QWidget* control : window_->findChildren<QWidget*>()) {
        if (!IsOurs(control)) continue;
        EXPECT_FALSE(seen.contains(control->objectName())) << control->objectName().toStdString() << " is there twice";
        seen.insert(control->objectName());
    }
}

TEST_P(EveryWindow, SpeaksOfWhatTheKeyboardReaches) {
    for (const QWidget* control : window_->findChildren<QWidget*>()) {
        if (!IsOurs(control) || (control->focusPolicy() & Qt::TabFocus) == 0) continue;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        EXPECT_TRUE(!control->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty()))
            << control->objectName().toStdString() << " has no accessible name";
    }
}

TEST_P(EveryWindow, HasACommandBehindEveryButtonAndItem) {
    for (const auto* button : window_->findChildren<QAbstractButton*>()) {
        if (!IsOurs(button) || !button->isEnabled() || button->isCheckable()) continue;
        EXPECT_TRUE(Reacts(button)) << button->objectName().toStdString();
    }
    for (const auto* action : window_->findChildren<QAction*>()) {
        if (!action->objectName().startsWith(QStringLiteral("mnu")) || action->menu() != nullptr) continue;
        const bool wired = action->property("hasCommand").toBool();
        EXPECT_NE(wired, StandsWithoutCommand(action)) << action->objectName().toStdString();
        EXPECT_TRUE(wired || !action->isEnabled()) << action->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Of, EveryWindow, testing::ValuesIn(AllWindows()),
                         [](const auto& one) { return std::string(one.param.name); });
}  // namespace
