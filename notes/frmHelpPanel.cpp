// The side panel's help.
#include "notes/frmHelpPanel.h"

#include <QBoxLayout>
#include <QSignalBlocker>

#include "forms/qt/text.h"
#include "forms/qt/window.h"
#include "notes/frmHelp.h"
#include "notes/modHelp.h"

HelpPanel::HelpPanel(QWidget* parent) : QWidget(parent) {
    lblHelpSubject =
        Named(new QLabel(QStringLiteral("Help: Select a Topic Below"), this), QStringLiteral("lblHelpSubject"));
    cmbHelp = Named(new QComboBox(this), QStringLiteral("cmbHelp"), QStringLiteral("Help topics"));
    cmbHelp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    txtHelp = Named(new QPlainTextEdit(this), QStringLiteral("txtHelp"), QStringLiteral("Help text"));
    txtHelp->setReadOnly(true);
    txtHelp->setTabChangesFocus(true);
    imgHelp = Named(new PictureButton(Picture::Help, QStringLiteral("Click for Enlarged Version of Help"), this),
                    QStringLiteral("imgHelp"));
    auto* top = new QHBoxLayout;
    top->addWidget(lblHelpSubject, 1);
    top->addWidget(imgHelp);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(4);
    all->addLayout(top);
    all->addWidget(cmbHelp);
    all->addWidget(txtHelp, 1);
    connect(cmbHelp, &QComboBox::activated, this, &HelpPanel::cmbHelp_Click);
    connect(imgHelp, &QAbstractButton::clicked, this, [] { OpenHelp(); });
    ShowHelpTopics = [this] { refresh(); };
    refresh();
}

HelpPanel::~HelpPanel() { ShowHelpTopics = {}; }

void HelpPanel::refresh() {
    const QSignalBlocker quiet(cmbHelp);
    cmbHelp->clear();
    for (const auto& title : HelpTitles) cmbHelp->addItem(FromText(title));
    cmbHelp_Click(0);
}

void HelpPanel::cmbHelp_Click(int topic) {
    HelpTopics.panelTopic = static_cast<std::size_t>(topic);
    txtHelp->setPlainText(FromText(HelpText(HelpTopics.panelTopic)));
}
