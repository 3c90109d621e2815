// The window of the preferences of frequently used terms.
#include "notes/frmPref.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

#include "notes/modFUT.h"
#include "shell/modPreferences.h"

frmPref::frmPref() : Window("frmPref", QStringLiteral("Frequent Used Terms Preferences")) {
    // The terms window, which opens together with the notes, stands above all others.
    setWindowFlag(Qt::WindowStaysOnTopHint);
    makeControls();
    layOut();
    showPreferences();
    txtStartPos->selectAll();
}

void frmPref::makeControls() {
    lblAutoStartPos = {Named(new QLabel(QStringLiteral("Start Suggesting Terms for Completion After")),
                             ElementName("lblAutoStartPos", 0)),
                       Named(new QLabel(QStringLiteral("Keystroke(s)")), ElementName("lblAutoStartPos", 1))};
    txtStartPos = Named(new QLineEdit, QStringLiteral("txtStartPos"), QStringLiteral("number of keystrokes"));
    txtStartPos->setToolTip(QStringLiteral("number of keystrokes"));
    txtStartPos->setMaxLength(4);
    txtStartPos->setAlignment(Qt::AlignCenter);
    txtStartPos->installEventFilter(this);
    connect(txtStartPos, &QLineEdit::textChanged, this, [this] { txtStartPos_Change(); });
    chkACEnable =
        Named(new QCheckBox(QStringLiteral("&Disable Automatic Term Completion")), QStringLiteral("chkACEnable"));
    chkShowFUT =
        Named(new QCheckBox(QStringLiteral("&Always Display Frequently Used Terms")), QStringLiteral("chkShowFUT"));
    chkShowFUT->setToolTip(QStringLiteral("The terms open together with the notes"));
    chkMinimizeFUT = Named(new QCheckBox(QStringLiteral("&Load the Frequent Terms at Minimized State")),
                           QStringLiteral("chkMinimizeFUT"));
    cmdSave = Named(new QPushButton(QStringLiteral("&Save and Exit")), QStringLiteral("cmdSave"));
    cmdExit = Named(new QPushButton(QStringLiteral("E&xit without Saving")), QStringLiteral("cmdExit"));
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
    connect(txtStartPos, &QLineEdit::returnPressed, this, [this] { cmdSave_Click(); });
    new QShortcut(QKeySequence::Cancel, this, [this] { cmdExit_Click(); });
}

void frmPref::layOut() {
    txtStartPos->setFixedWidth(txtStartPos->fontMetrics().horizontalAdvance(QStringLiteral("0000000")));
    auto* start = new QHBoxLayout;
    start->addWidget(lblAutoStartPos[0]);
    start->addWidget(txtStartPos);
    start->addWidget(lblAutoStartPos[1]);
    start->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(10);
    all->addLayout(start);
    for (QCheckBox* box : {chkACEnable, chkShowFUT, chkMinimizeFUT}) all->addWidget(box);
    all->addSpacing(6);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmPref::showPreferences() {
    const QSignalBlocker quiet(txtStartPos);
    startPosition_ = Preferences.autoStart;
    txtStartPos->setText(QString::number(startPosition_ + 1));
    chkACEnable->setChecked(!Preferences.autoComplete);
    chkShowFUT->setChecked(Preferences.showTerms);
    chkMinimizeFUT->setChecked(Preferences.minimizeTerms);
}

/// Of what can be typed the box takes the digits 1 to 9; keys that move, delete or leave are no typing.
bool frmPref::eventFilter(QObject* watched, QEvent* event) {
    if (watched != txtStartPos || event->type() != QEvent::KeyPress) return false;
    const QString typed = static_cast<QKeyEvent*>(event)->text();
    if (typed.isEmpty() || !typed[0].isPrint()) return false;
    return typed < QStringLiteral("1") || typed > QStringLiteral("9");
}

void frmPref::txtStartPos_Change() { startPosition_ = std::max(txtStartPos->text().toInt() - 1, 0); }

void frmPref::cmdSave_Click() {
    if (!SaveTermsPreferences(!chkACEnable->isChecked(), startPosition_, chkShowFUT->isChecked(),
                              chkMinimizeFUT->isChecked()))
        return;
    if (ShowTerms) ShowTerms();  // its button names what completion is switched to
    close();
}

void frmPref::cmdExit_Click() { close(); }
