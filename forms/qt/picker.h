// Editable lists of a few short texts.
#pragma once

#include <QComboBox>

/// An editable list that is quickly made, because the start of the program waits for several: its width is that of one
/// text, its list of items opens when it is asked for, and what completes typing is made when somebody comes to type.
class Picker : public QComboBox {
    Q_OBJECT

  public:
    /// No item is wider than `longest`. `completing`: an item that begins with what is typed is offered.
    Picker(const QStringList& items, QString longest, bool completing, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    QString longest_;
    bool completing_;
};
