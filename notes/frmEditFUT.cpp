// The window in which a term is changed.
#include "notes/frmEditFUT.h"

#include <QBoxLayout>
#include <QShortcut>

#include "base/dialogs.h"
#include "forms/qt/text.h"
#include "notes/modFUT.h"
#include "shell/modPreferences.h"

frmEditFUT::frmEditFUT() : Window("frmEditFUT", QStringLiteral("Edit Frequently Used Term")) {
    // The terms window, from which this one is opened, stands above all others.
    setWindowFlag(Qt::WindowStaysOnTopHint);
    const QString prompt = QStringLiteral("Edit Term Below");
    lblEditFUT = Named(new QLabel(prompt), QStringLiteral("lblEditFUT"));
    txtEditFUT = Named(new QLineEdit, QStringLiteral("txtEditFUT"), prompt);
    lblEditFUT->setBuddy(txtEditFUT);
    cmdSave = Named(new QPushButton(QStringLiteral("&Save Changes")), QStringLiteral("cmdSave"),
                    QStringLiteral("Save Changes"));
    cmdExit = Named(new QPushButton(QStringLiteral("&Cancel/Exit")), QStringLiteral("cmdExit"),
                    QStringLiteral("Cancel/Exit"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdSave, cmdExit}) buttons->addWidget(button);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblEditFUT);
    all->addWidget(txtEditFUT);
    all->addStretch(1);
    all->addLayout(buttons);
    resize(Pixels(5400), sizeHint().height());
    connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
    connect(txtEditFUT, &QLineEdit::returnPressed, this, [this] { cmdSave_Click(); });
    connect(cmdExit, &QPushButton::clicked, this, [this] { close(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
}

void frmEditFUT::edit(const std::string& term) {
    if (!queryUnload()) return;
    term_ = term;
    file_ = CurrentTermsFile;
    txtEditFUT->setText(FromText(term));
    shown_ = txtEditFUT->text();
    txtEditFUT->selectAll();
    txtEditFUT->setFocus();
}

void frmEditFUT::cmdSave_Click() {
    if (save()) close();
}

bool frmEditFUT::save() {
    if (CurrentTermsFile != file_) {
        ShowMessage("The term belongs to the list \"" + TermsListName(file_) +
                    "\", and another list is shown. Show that one to save the change.");
        return false;
    }
    const auto text = LineToSave(txtEditFUT->text());
    if (!text || !ChangeTerm(term_, *text)) return false;
    shown_ = txtEditFUT->text();
    return true;
}

bool frmEditFUT::queryUnload() {
    if (txtEditFUT->text() == shown_) return true;
    return AskToSave("The term has been changed. Do you want to save the changes?", "Term Has Changed",
                     [this] { return save(); });
}
