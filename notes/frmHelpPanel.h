// The help of the main window's side panel: a box of titles over the chosen topic's text.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "forms/qt/pictureButton.h"

/// Fills the hook ShowHelpTopics while it lives.
class HelpPanel : public QWidget {
    Q_OBJECT

  public:
    explicit HelpPanel(QWidget* parent = nullptr);
    ~HelpPanel() override;

    QLabel* lblHelpSubject;
    QComboBox* cmbHelp;
    QPlainTextEdit* txtHelp;
    PictureButton* imgHelp;

    /// Shows the titles, and the first topic's text.
    void refresh();

  private:
    void cmbHelp_Click(int topic);
};
