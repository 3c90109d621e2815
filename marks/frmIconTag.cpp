// The manager of a palette slot.
#include "marks/frmIconTag.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/dialogs.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"
#include "marks/frmIcons.h"
#include "marks/modIcons.h"

namespace {
constexpr int Columns = 12;
constexpr int SelectedSide = 32;
}  // namespace

frmIconTag::frmIconTag() : Window("frmIconTag", QStringLiteral("Icon Manager")) {
    imgSelectedIcon = Named(new IconImage(SelectedSide, this), QStringLiteral("imgSelectedIcon"), tr("Selected icon"));
    imgSelectedIcon->setFixedSize(SelectedSide + 8, SelectedSide + 8);
    auto* lblTag = Named(new QLabel(tr("&Caption:"), this), QStringLiteral("lblTag"));
    txtTag = Named(new QLineEdit(this), QStringLiteral("txtTag"), tr("Caption"));
    lblTag->setBuddy(txtTag);
    cmdSave = Named(new QPushButton(tr("&Save"), this), QStringLiteral("cmdSave"), tr("Save"));
    cmdSave->setDefault(true);
    auto* top = new QHBoxLayout;
    for (QWidget* widget : {static_cast<QWidget*>(imgSelectedIcon), static_cast<QWidget*>(lblTag),
                            static_cast<QWidget*>(txtTag), static_cast<QWidget*>(cmdSave)})
        top->addWidget(widget);

    auto* label = Named(new QLabel(tr("Select Different Icon Below"), this), QStringLiteral("lblSelect"));
    auto* picMain = Named(new QWidget(this), QStringLiteral("picMain"), label->text());
    imgIcon = Named(new IconGrid(LibrarySize, Columns, picMain), QStringLiteral("grdIcons"), label->text());
    auto* inner = new QVBoxLayout(picMain);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->addWidget(imgIcon);
    auto* outer = new QVBoxLayout(this);
    outer->addLayout(top);
    outer->addWidget(label);
    outer->addWidget(picMain);
    outer->setSizeConstraint(QLayout::SetFixedSize);

    for (int picture = 0; picture < LibrarySize; ++picture) (*imgIcon)[picture]->setPicture(picture);
    connect(imgIcon, &IconGrid::mouseDown, this, [this](int picture, QMouseEvent*) { imgIcon_Click(picture); });
    connect(imgIcon, &IconGrid::chosen, this, &frmIconTag::imgIcon_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmIconTag::cmdSave_Click);
    connect(txtTag, &QLineEdit::returnPressed, cmdSave, &QPushButton::click);
    MakeMeTopmost(this);
}

void frmIconTag::ShowSlot(int slot) {
    if (!queryUnload()) return;
    slot_ = slot;
    txtTag->setText(FromText(IconCaption.at(static_cast<std::size_t>(slot))));
    caption_ = txtTag->text();
    txtTag->selectAll();
    txtTag->setFocus();
    imgIcon_Click(PictureOfSlot(slot));
}

void frmIconTag::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        Window::keyPressEvent(event);
}

void frmIconTag::imgIcon_Click(int picture) {
    picture_ = picture;
    imgSelectedIcon->setPicture(picture);
    if (picture < LibrarySize) imgIcon->setCurrent(picture);
}

void frmIconTag::cmdSave_Click() {
    if (save()) close();
}

bool frmIconTag::save() {
    const auto caption = LineToSave(txtTag->text());
    if (!caption || !ChangePaletteSlot(slot_, *caption, picture_)) return false;
    caption_ = txtTag->text();
    if (auto* palette = OpenedWindow<frmIcons>()) palette->ReassignIconTags();
    return true;
}

bool frmIconTag::queryUnload() {
    if (txtTag->text() == caption_ && picture_ == PictureOfSlot(slot_)) return true;
    return AskToSave("The icon has been changed. Do you want to save the changes?", "Icon Has Changed",
                     [this] { return save(); });
}

void ShowIconTag(int slot) { ShowWindow<frmIconTag>()->ShowSlot(slot); }
