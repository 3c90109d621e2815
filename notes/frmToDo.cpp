// The to-do list's window.
#include "notes/frmToDo.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QSignalBlocker>
#include <algorithm>

#include "base/dialogs.h"
#include "forms/qt/text.h"

namespace {
constexpr int RowPitch = Pixels(345);
constexpr int MarkSize = Pixels(300);
constexpr int LastRow = ToDoRows - 1;

std::size_t At(int row) { return static_cast<std::size_t>(row); }
}  // namespace

frmToDo::frmToDo() : Window("frmToDo", QStringLiteral("To Do List")) {
    lblTop = Named(new QLabel(QStringLiteral("Enter To Do information in the boxes provided below. Mark items as done "
                                             "in the boxes on the left or Remove them altogether with the option on "
                                             "the right hand side.")),
                   QStringLiteral("lblTop"));
    lblTop->setWordWrap(true);
    for (int row = 0; row < ToDoRows; ++row) makeRow(row);
    buildMenus();
    layOut();
    showRows();
    txt[0]->setFocus();
}

void frmToDo::buildMenus() {
    menus_.build(new QMenuBar(this),
                 {Without("mnuFile", "&File", ""),
                  With(
                      "mnuFileSave", "Save", "mnuFile", [this] { save(); }, QKeySequence::Save),
                  Without("mnuFileSaveAs", "Save &As", "mnuFile"),
                  With(
                      "mnuFilePrint", "&Print", "mnuFile", [this] { mnuFilePrint_Click(); }, QKeySequence::Print),
                  Without("mnuOpt", "Options", ""),
                  With("mnuOptMoveUp", "Move Contents Up One Line", "mnuOpt", [this] { mnuOptMoveUp_Click(); }),
                  With("mnuOptMoveDown", "Move Contents Down One Line", "mnuOpt", [this] { mnuOptMoveDown_Click(); })});
}

void frmToDo::makeRow(int row) {
    const QString number = QString::number(row + 1);
    imgChkBox[At(row)] =
        Named(new PictureButton(Picture::Unchecked, QStringLiteral("Click to mark as done or not done")),
              ElementName("imgChkBox", row));
    lbl[At(row)] = Named(new QLabel(number), ElementName("lbl", row));
    txt[At(row)] = Named(new QLineEdit, ElementName("txt", row), QStringLiteral("To do ") + number);
    cmdDelete[At(row)] = Named(new QPushButton(QStringLiteral("Remove")), ElementName("cmdDelete", row),
                               QStringLiteral("Remove to do ") + number);
    txt[At(row)]->installEventFilter(this);
    connect(imgChkBox[At(row)], &QAbstractButton::clicked, this, [this, row] { imgChkBox_Click(row); });
    connect(txt[At(row)], &QLineEdit::textChanged, this, [this, row] { txt_Change(row); });
    connect(cmdDelete[At(row)], &QPushButton::clicked, this, [this, row] { cmdDelete_Click(row); });
}

void frmToDo::layOut() {
    const int pitch = std::max(RowPitch, fontMetrics().height() + 6);
    auto* rows = new QGridLayout;
    rows->setVerticalSpacing(0);
    for (int row = 0; row < ToDoRows; ++row) {
        rows->setRowMinimumHeight(row, pitch);
        rows->addWidget(imgChkBox[At(row)], row, 0, Qt::AlignCenter);
        rows->addWidget(lbl[At(row)], row, 1);
        rows->addWidget(txt[At(row)], row, 2);
        rows->addWidget(cmdDelete[At(row)], row, 3);
        imgChkBox[At(row)]->setFixedSize(MarkSize, MarkSize);
        for (QWidget* control : {static_cast<QWidget*>(txt[At(row)]), static_cast<QWidget*>(cmdDelete[At(row)])})
            control->setFixedHeight(pitch - 1);
    }
    rows->setColumnStretch(2, 1);
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(findChild<QMenuBar*>());
    all->addWidget(lblTop);
    all->addSpacing(Pixels(120));
    all->addLayout(rows);
    all->addStretch(1);
    resize(Pixels(9600), all->totalHeightForWidth(Pixels(9600)));
}

// -- Showing --------------------------------------------------------------------------------------------------------

void frmToDo::showRows() {
    for (int row = 0; row < ToDoRows; ++row) {
        const QSignalBlocker quiet(txt[At(row)]);
        txt[At(row)]->setText(FromText(ToDo.editedTexts[At(row)]));
        txt[At(row)]->setCursorPosition(0);
        showMark(row);
        showBackground(row);
    }
}

void frmToDo::showMark(int row) {
    const bool done = ToDo.done[At(row)];
    PictureButton* mark = imgChkBox[At(row)];
    mark->setPicture(done ? Picture::Checked : Picture::Unchecked);
    mark->setProperty("tag", done ? QStringLiteral("True") : QStringLiteral("False"));
    mark->setAccessibleName(
        QStringLiteral("To do %1 is %2").arg(row + 1).arg(done ? QStringLiteral("done") : QStringLiteral("not done")));
}

/// Cyan while the row is written in, red afterwards if its text is long. Both are light: the text on them is black.
void frmToDo::showBackground(int row) {
    QLineEdit* box = txt[At(row)];
    const bool writing = box->hasFocus();
    const bool tooLong = ToDo.editedTexts[At(row)].size() > LongToDoText;
    QPalette colours;
    if (writing || tooLong) {
        colours.setColor(QPalette::Base, writing ? Qt::cyan : Qt::red);
        colours.setColor(QPalette::Text, Qt::black);
    }
    box->setPalette(colours);
}

/// The boxes take over each other's texts as typed, characters that cannot be saved included.
void frmToDo::shiftBoxes(int by) {
    QStringList before;
    for (const QLineEdit* box : txt) before << box->text();
    for (int row = 0; row < ToDoRows; ++row) {
        const QSignalBlocker quiet(txt[At(row)]);
        txt[At(row)]->setText(before.value(row - by));
        showMark(row);
        showBackground(row);
    }
}

// -- Events ---------------------------------------------------------------------------------------------------------

void frmToDo::imgChkBox_Click(int row) {
    ToggleToDoDone(row);
    showMark(row);
}

void frmToDo::txt_Change(int row) { SetToDoText(row, ToText(txt[At(row)]->text())); }

void frmToDo::cmdDelete_Click(int row) {
    txt[At(row)]->clear();
    showBackground(row);
}

/// True if the key is used up.
bool frmToDo::txt_KeyDown(int row, int key) {
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const int next = row + (enter || key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0);
    if (next != row && next >= 0 && next <= LastRow) {
        txt[At(next)]->setFocus();
        return true;
    }
    return enter;
}

bool frmToDo::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(txt.begin(), txt.end(), watched);
    if (found == txt.end()) return Window::eventFilter(watched, event);
    const int row = static_cast<int>(found - txt.begin());
    if (event->type() == QEvent::KeyPress) return txt_KeyDown(row, static_cast<QKeyEvent*>(event)->key());
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) showBackground(row);
    return false;
}

void frmToDo::mnuOptMoveUp_Click() {
    if (MoveToDoUp()) shiftBoxes(-1);
}

void frmToDo::mnuOptMoveDown_Click() {
    if (MoveToDoDown()) shiftBoxes(1);
}

// -- Saving, printing, closing --------------------------------------------------------------------------------------

bool frmToDo::save() {
    for (QLineEdit* box : txt) {
        if (TextToSave(box->text())) continue;
        box->setFocus();
        return false;
    }
    if (!SaveToDoList()) return false;
    ReadToDoList();
    return true;
}

ToDoPlace frmToDo::placeOf(const QWidget* control) const {
    const QPoint corner = control->mapTo(this, QPoint(0, 0));
    return {static_cast<double>(Twips(corner.x())), static_cast<double>(Twips(corner.y())),
            static_cast<double>(Twips(control->width())), static_cast<double>(Twips(control->height()))};
}

ToDoSheet frmToDo::sheet() const {
    ToDoSheet places;
    for (std::size_t row = 0; row < ToDoRows; ++row) {
        places.mark[row] = placeOf(imgChkBox[row]);
        places.number[row] = placeOf(lbl[row]);
        places.text[row] = placeOf(txt[row]);
    }
    return places;
}

void frmToDo::mnuFilePrint_Click() { PrintToDoList(sheet()); }

bool frmToDo::queryUnload() {
    if (!TaskListChanged) return true;
    if (!AskToSave("To Do List has been changed. Do you want to save the changes?", "To Do List Changed",
                   [this] { return save(); }))
        return false;
    TaskListChanged = false;
    return true;
}

void frmToDo::unload() { ForgetToDoEdits(); }

void OpenToDoList() {
    ShowToDoWindow = [] { ShowWindow<frmToDo>()->showRows(); };
    if (OpenedWindow<frmToDo>() != nullptr) {
        ShowWindow<frmToDo>();
        return;
    }
    TaskListOpenRequested = true;
    ReadToDoList();
}
