// A label that never asks for more room than there is.
#pragma once

#include <QLabel>

/// Shows as much of its plain text as fits its width; where that is not all, the whole text is its tool tip, unless it
/// has one of its own. Unlike a usual label it does not make its window wider.
class FittingLabel : public QLabel {
    Q_OBJECT

  public:
    FittingLabel(const QString& text, QWidget* parent);
    QSize minimumSizeHint() const override;
    /// What of the text is to be seen.
    QString fitting() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
