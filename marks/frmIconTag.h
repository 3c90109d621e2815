// The manager of a palette slot: another caption, another picture of the library.
#pragma once

#include "forms/qt/window.h"

class IconGrid;
class IconImage;
class QLineEdit;
class QPushButton;

class frmIconTag : public Window {
    Q_OBJECT

  public:
    frmIconTag();
    /// Shows the slot (0..95) of the palette.
    void ShowSlot(int slot);
    /// Asks about a caption or an icon that was chosen and not saved.
    bool queryUnload() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void imgIcon_Click(int picture);
    void cmdSave_Click();
    bool save();

    QLineEdit* txtTag;
    IconImage* imgSelectedIcon;
    IconGrid* imgIcon;
    QPushButton* cmdSave;
    int slot_ = 0;
    QString caption_;  // as the box showed it before anybody typed
    int picture_ = 0;  // the chosen number
};

/// Opens the manager on a slot of the palette.
void ShowIconTag(int slot);
