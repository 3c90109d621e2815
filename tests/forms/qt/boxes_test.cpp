// The boxes on the screen: what their keys answer, and what an input box does with characters that no file holds.
#include "forms/qt/boxes.h"

#include <gtest/gtest.h>

#include <QInputDialog>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "base/dialogs.h"
#include "forms/qt/window.h"

namespace {
struct Boxes : testing::Test {
    Boxes() : previous_(SetDialogs({})) { InstallBoxes(); }
    ~Boxes() override { SetDialogs(previous_); }
    /// Does something to the box that opens next.
    template <class Act>
    static void then(Act act) {
        QTimer::singleShot(0, [act] { act(QApplication::activeModalWidget()); });
    }

  private:
    Dialogs previous_;
};

TEST_F(Boxes, EnterAndEscapeNeverAnswerALoss) {
    using Row = std::tuple<Buttons, Answer, Answer>;
    for (const auto& [buttons, enter, escape] :
         {Row{Buttons::Ok, Answer::Ok, Answer::Ok}, Row{Buttons::OkCancel, Answer::Ok, Answer::Cancel},
          Row{Buttons::YesNo, Answer::Yes, Answer::No}, Row{Buttons::YesNoWithCare, Answer::No, Answer::No},
          Row{Buttons::YesNoCancel, Answer::Yes, Answer::Cancel}})
        for (const auto& [key, answer] : {std::pair{Qt::Key_Return, enter}, std::pair{Qt::Key_Escape, escape}}) {
            then([pressed = key](QWidget* box) { QTest::keyClick(box, pressed); });
            EXPECT_EQ(Ask("Go on?", buttons), answer) << static_cast<int>(buttons) << " key " << key;
        }
}

TEST_F(Boxes, BoxBelongsToTheWindowThatIsKeptAboveTheOthers) {
    QWidget palette;
    MakeMeTopmost(&palette);
    const auto look = [&palette](QWidget* box) {
        EXPECT_EQ(box->windowHandle()->transientParent(), palette.windowHandle());
        QTest::keyClick(box, Qt::Key_Escape);
    };
    then(look);
    ShowMessage("Placed.");
    then(look);
    EXPECT_EQ(AskForText("Name?", "Naming", "old"), "");
}

TEST_F(Boxes, AnInputBoxComesBackWithTheTextThatNoFileHolds) {
    then([](QWidget* box) {
        static_cast<QInputDialog*>(box)->setTextValue(QStringLiteral("Snow \u2603"));
        then([](QWidget* message) {
            then([](QWidget* again) {
                auto* input = static_cast<QInputDialog*>(again);
                EXPECT_EQ(input->textValue(), QStringLiteral("Snow \u2603"));
                input->setTextValue(QStringLiteral("Snow"));
                QTest::keyClick(again, Qt::Key_Return);
            });
            EXPECT_EQ(message->objectName(), QStringLiteral("MessageBox"));
            QTest::keyClick(message, Qt::Key_Return);
        });
        QTest::keyClick(box, Qt::Key_Return);
    });
    EXPECT_EQ(AskForText("Name?", "Naming", "old"), "Snow");
    then([](QWidget* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_EQ(AskForText("Name?", "Naming", "old"), "");
}
}  // namespace
