// The window of the marker categories' captions and colours.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <array>

#include "forms/qt/menus.h"
#include "forms/qt/window.h"
#include "marks/modCategories.h"

/// A patch of colour that can be clicked, with its caption on it and a border while it is selected.
class ColorPatch : public QAbstractButton {
    Q_OBJECT

  public:
    explicit ColorPatch(QWidget* parent = nullptr);
    void setColors(Color back, Color text);
    Color backColor() const { return back_; }
    bool hasBorder() const { return border_; }
    void setBorder(bool border);
    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    Color back_ = White;
    Color text_ = Black;
    bool border_ = false;
};

class frmColors : public Window {
    Q_OBJECT

  public:
    frmColors();
    bool queryUnload() override;

    QLabel* lblMain;
    std::array<ColorPatch*, CategoryCount> lblMarker{};
    std::array<ColorPatch*, MarkerPalette.size()> cmdColor{};
    QLabel* lblCaption;
    QLineEdit* txtEdit;
    QPushButton* cmdSave;
    QPushButton* cmdExit;

  protected:
    void unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeControls();
    QLayout* categoriesLayout();
    QLayout* paletteLayout();
    void layOut();
    void showLabels();
    void selectLabel(int index);
    bool isEdited() const;

    void lblMarker_Click(int index);
    void txtEdit_Change();
    void cmdColor_Click(int index);
    void cmdSave_Click();
    bool save();
    void cmdExit_Click();
    void mnuEditCaption_Click();

    ByCategory<MarkerLabel> shown_;  // the labels as last taken from the table
    int current_ = -1;               // the label that is edited; -1 while none is selected
    bool leaving_ = false;           // saved, or left on purpose without saving
    Menus menus_;
};
