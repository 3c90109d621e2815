// The panel's ten items, placed by hand: the second column begins at a fixed place, the texts end where the panel does.
#include "notes/frmToDoPanel.h"

#include <QEvent>
#include <algorithm>

#include "forms/qt/fittingLabel.h"
#include "forms/qt/lists.h"
#include "forms/qt/text.h"
#include "forms/qt/window.h"

namespace {
constexpr int ItemsInColumn = 5;
constexpr int FirstColumn = Pixels(120);
constexpr int SecondColumn = Pixels(5820);
constexpr int NumberOffset = Pixels(360);
constexpr int TextOffset = Pixels(600);
constexpr int RowPitch = Pixels(345);
constexpr int Gap = Pixels(90);
constexpr int MarkSize = 16;
constexpr int LeastTextWidth = Pixels(1500);

int RowHeight(const QFontMetrics& metrics) { return std::max(RowPitch, metrics.height()); }

std::size_t RowOf(int item) { return static_cast<std::size_t>(item - 1); }
}  // namespace

ToDoPanel::ToDoPanel(QWidget* parent) : QWidget(parent) {
    lblTop = Named(new QLabel(QStringLiteral("The To Do List is displayed below. This list can be edited from under "
                                             "the menu item labeled \"Manage\"."),
                              this),
                   QStringLiteral("lblTop"));
    for (int item = 1; item <= ToDoRows; ++item) makeItem(item);
    lblOtherToDo = Named(new QLabel(QStringLiteral("Other To Do Lists"), this), QStringLiteral("lblOtherToDo"));
    lstOtherToDo = Named(new ListBox(this), QStringLiteral("lstOtherToDo"), QStringLiteral("Other To Do Lists"));
    lblOtherToDo->hide();
    lstOtherToDo->hide();
    ShowToDo = [this] { refresh(); };
    refresh();
}

ToDoPanel::~ToDoPanel() { ShowToDo = {}; }

void ToDoPanel::makeItem(int item) {
    const auto at = static_cast<std::size_t>(item);
    const QString number = QString::number(item);
    imgChkBox[at] = Named(new PictureLabel(Picture::Unchecked, this), ElementName("imgChkBox", item));
    lbl[at] = Named(new QLabel(number, this), ElementName("lbl", item));
    lblToDo[at] = Named(new FittingLabel({}, this), ElementName("lblToDo", item), QStringLiteral("To do ") + number);
}

int ToDoPanel::HeightWith(const QFontMetrics& metrics) {
    return metrics.height() + ItemsInColumn * RowHeight(metrics) + 3 * Gap;
}

QSize ToDoPanel::sizeHint() const { return {SecondColumn + TextOffset + LeastTextWidth, HeightWith(fontMetrics())}; }

void ToDoPanel::placeItems() {
    const int height = RowHeight(fontMetrics());
    lblTop->setGeometry(FirstColumn, Gap, width() - 2 * FirstColumn, fontMetrics().height());
    const int top = lblTop->geometry().bottom() + Gap;
    for (int item = 1; item <= ToDoRows; ++item) {
        const auto at = static_cast<std::size_t>(item);
        const bool second = item > ItemsInColumn;
        const int left = second ? SecondColumn : FirstColumn;
        const int right = second ? width() - FirstColumn : SecondColumn - Gap;
        const int y = top + (item - 1) % ItemsInColumn * height;
        imgChkBox[at]->setGeometry(left, y + (height - MarkSize) / 2, MarkSize, MarkSize);
        lbl[at]->setGeometry(left + NumberOffset, y, TextOffset - NumberOffset, height);
        lblToDo[at]->setGeometry(left + TextOffset, y, std::max(0, right - left - TextOffset), height);
    }
}

void ToDoPanel::refresh() {
    for (int item = 1; item <= ToDoRows; ++item) {
        const bool done = ToDo.panelDone[RowOf(item)];
        PictureLabel* mark = imgChkBox[static_cast<std::size_t>(item)];
        mark->setPicture(done ? Picture::Checked : Picture::Unchecked);
        mark->setAccessibleName(done ? QStringLiteral("done") : QStringLiteral("not done"));
        lblToDo[static_cast<std::size_t>(item)]->setText(FromText(ToDo.panelTexts[RowOf(item)]));
    }
}

void ToDoPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeItems();
}

void ToDoPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    updateGeometry();
    placeItems();
}
