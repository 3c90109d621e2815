// The alarm clock's window.
#include "tools/frmAlarm.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QMenuBar>
#include <QRegularExpressionValidator>
#include <algorithm>

#include "base/clock.h"
#include "base/dialogs.h"
#include "base/text.h"
#include "forms/qt/text.h"

namespace {
constexpr int ButtonsInRow = 6;
constexpr double UsualWidth = 480;  // logical pixels
constexpr double UsualHeight = 260;
const QString Prompt = QStringLiteral("Click on the Hour, Minute and AM or PM to set the alarm.");
const QString StartCaption = QStringLiteral("Start");
const QString ResetCaption = QStringLiteral("Reset");

const std::string HowTo =
    "1. Select a Time by clicking on the desired Hour and Minute buttons.\r\n"
    "2. Click on either AM or PM.\r\n"
    "3. Click Start to Set the Alarm.\r\n"
    "Alternatively, you can type the time into the Time Box and then click\r\n"
    "on the AM or PM button.";
const std::string AboutAlarm =
    "Brisk Alarm Clock\r\n"
    "Beeps and flashes a message at the time you set.\r\n"
    "The alarm is kept only while its window is open.";
const std::string AboutTasmoro =
    "Tasmoro\r\n"
    "A planner for one person: calendar, notes, reminders, lists and date tools.";

/// Shows a button as chosen in the palette's own colours, or like the others.
void Highlight(QPushButton* button, bool chosen) {
    QPalette colours;
    if (chosen) {
        colours.setColor(QPalette::Button, colours.color(QPalette::Active, QPalette::Highlight));
        colours.setColor(QPalette::ButtonText, colours.color(QPalette::Active, QPalette::HighlightedText));
    }
    button->setPalette(colours);
}

/// Chooses one button of a row of them; none for null.
template <class Buttons>
void HighlightOnly(const Buttons& buttons, const QPushButton* chosen) {
    for (QPushButton* button : buttons) Highlight(button, button == chosen);
}
}  // namespace

frmAlarm::frmAlarm() : Window("frmAlarm", QStringLiteral("Brisk Alarm Clock")) {
    lblHour = Named(new QLabel(QStringLiteral("Select Hour Below")), QStringLiteral("lblHour"));
    lblMinutes = Named(new QLabel(QStringLiteral("Select Minutes Below")), QStringLiteral("lblMinutes"));
    txtTime = Named(new QLineEdit, QStringLiteral("txtTime"), QStringLiteral("Time"));
    txtTime->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9:]*")), txtTime));
    txtTime->setAlignment(Qt::AlignCenter);
    lblAlarm = Named(new QLabel(Prompt), QStringLiteral("lblAlarm"));
    lblAlarm->setWordWrap(true);
    lblAlarm->setAlignment(Qt::AlignCenter);
    makeButtons();
    buildMenus();
    layOut();
    connectControls();
    txtTime->setFocus();
}

void frmAlarm::buildMenus() {
    menus_.build(
        new QMenuBar(this),
        {Without("mnuHelp", "&Help", ""), With("mnuHelpHowTo", "How to Use...", "mnuHelp", [] { ShowMessage(HowTo); }),
         Without("mnuHelpAbout", "&About", "mnuHelp"),
         With("mnuHelpAboutAlarm", "About the Alarm Clock", "mnuHelpAbout", [] { ShowMessage(AboutAlarm); }),
         With("mnuHelpAboutProgram", "About Tasmoro", "mnuHelpAbout", [] { ShowMessage(AboutTasmoro); })});
}

void frmAlarm::makeButtons() {
    const auto button = [](const QString& name, const QString& caption, const QString& spoken) {
        return Named(new QPushButton(caption), name, spoken);
    };
    for (int i = 0; i < 12; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const QString hour = QString::number(i + 1);
        const QString minute = FromText(":" + TwoDigits(i * 5));
        cmdHour[at] = button(ElementName("cmdHour", i), hour, QStringLiteral("Hour ") + hour);
        cmdMinute[at] = button(ElementName("cmdMinute", i), minute, QStringLiteral("Minutes ") + minute);
    }
    cmdAM = button(QStringLiteral("cmdAM"), QStringLiteral("AM"), QStringLiteral("AM"));
    cmdPM = button(QStringLiteral("cmdPM"), QStringLiteral("PM"), QStringLiteral("PM"));
    cmdStart = button(QStringLiteral("cmdStart"), StartCaption, StartCaption);
    cmdExit = button(QStringLiteral("cmdExit"), QStringLiteral("EXIT"), QStringLiteral("Exit"));
}

void frmAlarm::connectControls() {
    for (QPushButton* hour : cmdHour) connect(hour, &QPushButton::clicked, this, [this, hour] { cmdHour_Click(hour); });
    for (QPushButton* minute : cmdMinute)
        connect(minute, &QPushButton::clicked, this, [this, minute] { cmdMinute_Click(minute); });
    for (QPushButton* half : {cmdAM, cmdPM})
        connect(half, &QPushButton::clicked, this, [this, half] { chooseHalf(half); });
    connect(cmdStart, &QPushButton::clicked, this, &frmAlarm::cmdStart_Click);
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(txtTime, &QLineEdit::textChanged, this, [this](const QString& text) { alarm_.timeText = ToText(text); });
    connect(txtTime, &QLineEdit::inputRejected, this, [] { QApplication::beep(); });
    Timer1.setInterval(AlarmCheckMilliseconds);
    Timer2.setInterval(AlarmSignalMilliseconds);
    connect(&Timer1, &QTimer::timeout, this, &frmAlarm::Timer1_Timer);
    connect(&Timer2, &QTimer::timeout, this, &frmAlarm::Timer2_Timer);
}

void frmAlarm::layOut() {
    const auto grid = [](const std::array<QPushButton*, 12>& buttons) {
        auto* made = new QGridLayout;
        made->setSpacing(4);
        for (int i = 0; i < 12; ++i) {
            QPushButton* button = buttons[static_cast<std::size_t>(i)];
            // Their size follows the window and their font follows their size, never the other way round.
            button->setMinimumSize(46, button->sizeHint().height());
            button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
            made->addWidget(button, i / ButtonsInRow, i % ButtonsInRow);
        }
        return made;
    };
    auto* time = new QHBoxLayout;
    for (QWidget* control :
         {static_cast<QWidget*>(txtTime), static_cast<QWidget*>(cmdAM), static_cast<QWidget*>(cmdPM)})
        time->addWidget(control);
    auto* end = new QHBoxLayout;
    end->addWidget(cmdStart);
    end->addStretch(1);
    end->addWidget(cmdExit);
    // Hidden controls keep their room: nothing jumps when the message flashes or "Start" appears.
    for (QWidget* control : {static_cast<QWidget*>(lblAlarm), static_cast<QWidget*>(cmdStart)}) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
    }
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(findChild<QMenuBar*>());
    all->addWidget(lblHour);
    all->addLayout(grid(cmdHour), 1);
    all->addWidget(lblMinutes);
    all->addLayout(grid(cmdMinute), 1);
    all->addLayout(time);
    all->addWidget(lblAlarm);
    all->addLayout(end);
    cmdStart->hide();
    resize(static_cast<int>(UsualWidth), static_cast<int>(UsualHeight));
}

/// Large buttons carry large numbers.
void frmAlarm::resizeEvent(QResizeEvent* event) {
    Window::resizeEvent(event);
    const double growth = std::min(width() / UsualWidth, height() / UsualHeight);
    QFont numbers = font();
    numbers.setPointSizeF(numbers.pointSizeF() * std::clamp(growth, 1.0, 3.0));
    for (const auto* buttons : {&cmdHour, &cmdMinute})
        for (QPushButton* button : *buttons) button->setFont(numbers);
}

// -- Choosing the time ----------------------------------------------------------------------------------------------

void frmAlarm::cmdHour_Click(QPushButton* hour) {
    HighlightOnly(cmdHour, hour);
    ChooseAlarmHour(alarm_, ToText(hour->text()));
    txtTime->setText(FromText(alarm_.timeText));
}

void frmAlarm::cmdMinute_Click(QPushButton* minute) {
    HighlightOnly(cmdMinute, minute);
    ChooseAlarmMinute(alarm_, ToText(minute->text()));
    txtTime->setText(FromText(alarm_.timeText));
}

void frmAlarm::chooseHalf(QPushButton* pressed) {
    HighlightOnly(std::array{cmdAM, cmdPM}, pressed);
    try {
        if (SetAlarmHalf(alarm_, ToText(pressed->text()))) {
            lblAlarm->setText(FromText("Time is Set for " + alarm_.alarmText + ". Click Start to Begin."));
            cmdStart->setText(StartCaption);
            cmdStart->show();
            return;
        }
        ShowMessage("A valid time has not been entered. Please select the Hour and Minutes.");
    } catch (const std::exception&) {
        ShowMessage(std::string("Alarm Time Error. Please make sure that there is a\r\nvalid time in the Time Box") +
                    (pressed == cmdPM ? " before." : "."));
    }
    lblAlarm->setText(Prompt);
}

// -- Starting and stopping ------------------------------------------------------------------------------------------

void frmAlarm::enableChoice(bool enabled) {
    for (QPushButton* button : cmdHour) button->setEnabled(enabled);
    for (QPushButton* button : cmdMinute) button->setEnabled(enabled);
    cmdAM->setEnabled(enabled);
    cmdPM->setEnabled(enabled);
    txtTime->setReadOnly(!enabled);
}

void frmAlarm::cmdStart_Click() {
    if (cmdStart->text() == ResetCaption)
        reset();
    else
        start();
}

void frmAlarm::start() {
    if (!ArmAlarm(alarm_, Now())) {
        ShowMessage("You must enter a time in the Time Box and then click on either AM or PM.");
        return;
    }
    Timer1.start();
    lblAlarm->setText(FromText("Time is Set for " + alarm_.alarmText + "."));
    cmdStart->setText(ResetCaption);
    enableChoice(false);
}

void frmAlarm::reset() {
    Timer1.stop();
    Timer2.stop();
    alarm_ = {};
    txtTime->clear();
    HighlightOnly(cmdHour, nullptr);
    HighlightOnly(cmdMinute, nullptr);
    HighlightOnly(std::array{cmdAM, cmdPM}, nullptr);
    enableChoice(true);
    cmdStart->hide();
    lblAlarm->setText(Prompt);
    lblAlarm->show();
    txtTime->setFocus();
}

// -- The clock ------------------------------------------------------------------------------------------------------

void frmAlarm::Timer1_Timer() {
    if (!AlarmRings(alarm_, Now())) return;
    Timer1.stop();
    QApplication::beep();
    lblAlarm->show();
    Timer2.start();
}

void frmAlarm::Timer2_Timer() {
    if (!NextAlarmBeat(alarm_)) Timer2.stop();
    lblAlarm->setText(FromText(AlarmReachedText(alarm_)));
    lblAlarm->setVisible(alarm_.lit);
    QApplication::beep();
}

void OpenAlarm() {
    if (auto* open = OpenedWindow<frmAlarm>()) {
        open->showMaximized();
        return;
    }
    MakeMeTopmost(LoadedWindow<frmAlarm>());
    ShowWindow<frmAlarm>();
}
