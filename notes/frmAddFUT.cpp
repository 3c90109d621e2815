// The window in which terms are added.
#include "notes/frmAddFUT.h"

#include <QBoxLayout>
#include <QShortcut>

#include "base/dialogs.h"
#include "forms/qt/text.h"
#include "notes/modFUT.h"

frmAddFUT::frmAddFUT() : Window("frmAddFUT", QStringLiteral("Add Frequently Used Term(s)")) {
    // The terms window, from which this one is opened, stands above all others.
    setWindowFlag(Qt::WindowStaysOnTopHint);
    const QString prompt = QStringLiteral("Enter Frequently Used Term(s) Below");
    lblAddFUT = Named(new QLabel(prompt), QStringLiteral("lblAddFUT"));
    txtAddFUT = Named(new QPlainTextEdit, QStringLiteral("txtAddFUT"), prompt);
    txtAddFUT->setTabChangesFocus(true);
    lblAddFUT->setBuddy(txtAddFUT);
    cmdSave = Named(new QPushButton(QStringLiteral("&Save")), QStringLiteral("cmdSave"), QStringLiteral("Save"));
    cmdClear = Named(new QPushButton(QStringLiteral("&Clear")), QStringLiteral("cmdClear"), QStringLiteral("Clear"));
    cmdExit = Named(new QPushButton(QStringLiteral("E&xit")), QStringLiteral("cmdExit"), QStringLiteral("Exit"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdSave, cmdClear, cmdExit}) buttons->addWidget(button);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblAddFUT);
    all->addWidget(txtAddFUT, 1);
    all->addLayout(buttons);
    resize(Pixels(5400), Pixels(3300));
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { cmdClear_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { close(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
    txtAddFUT->setFocus();
}

/// The text stays, selected: what is typed next takes its place.
void frmAddFUT::cmdSave_Click() {
    if (save()) txtAddFUT->selectAll();
    txtAddFUT->setFocus();
}

bool frmAddFUT::save() {
    const QString typed = txtAddFUT->toPlainText();
    const auto text = TextToSave(typed);
    if (!text || !AddTerms(*text)) return false;
    saved_ = typed;
    return true;
}

bool frmAddFUT::queryUnload() {
    const QString typed = txtAddFUT->toPlainText();
    if (typed == saved_ || typed.trimmed().isEmpty()) return true;
    return AskToSave("The terms have not been saved. Do you want to save them?", "Terms Not Saved",
                     [this] { return save(); });
}

void frmAddFUT::cmdClear_Click() {
    txtAddFUT->clear();
    txtAddFUT->setFocus();
}
