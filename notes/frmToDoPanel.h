// The to-do list as the main window shows it: ten items in two columns, to be read only.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <array>

#include "forms/qt/pictures.h"
#include "notes/modToDo.h"

/// Fills the hook ShowToDo while it lives.
class ToDoPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ToDoPanel(QWidget* parent = nullptr);
    ~ToDoPanel() override;

    // Items are numbered from 1, as their controls are; element 0 of each array is not used.
    QLabel* lblTop;
    std::array<PictureLabel*, ToDoRows + 1> imgChkBox{};
    std::array<QLabel*, ToDoRows + 1> lbl{};
    std::array<QLabel*, ToDoRows + 1> lblToDo{};
    // Hidden while there is nothing to show in them.
    QLabel* lblOtherToDo;
    QListWidget* lstOtherToDo;

    /// Shows the tables.
    void refresh();
    /// The height of a panel whose font has these metrics, pixels.
    static int HeightWith(const QFontMetrics& metrics);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void makeItem(int item);
    void placeItems();
};
