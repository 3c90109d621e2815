// The message and input boxes on the screen.
#include "forms/qt/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QWindow>
#include <algorithm>

#include "base/dialogs.h"
#include "base/text.h"
#include "forms/qt/text.h"

namespace {
QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
        case Buttons::YesNoWithCare:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

QString Shown(const std::string& utf8) {
    return QString::fromStdString(utf8).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).trimmed();
}

/// A box must not open behind a window that is kept above the others, nor get behind it when that one, asked for just
/// before, is activated after it: the window manager keeps the box above the window it belongs to.
void KeepInFront(QWidget& box) {
    const auto windows = QApplication::topLevelWidgets();
    const auto covering = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && !window->isMinimized() && window->windowType() == Qt::Window &&
               window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    });
    if (covering == windows.end()) return;
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
    box.winId();
    box.windowHandle()->setTransientParent((*covering)->windowHandle());
}

Answer ShowBox(const std::string& text, Buttons buttons, const std::string& title) {
    QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), Shown(text), ButtonsOf(buttons),
                    QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (buttons == Buttons::YesNo || buttons == Buttons::YesNoWithCare) box.setEscapeButton(QMessageBox::No);
    if (buttons == Buttons::YesNoWithCare) box.setDefaultButton(QMessageBox::No);
    KeepInFront(box);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

/// Asks again, with the text kept, for as long as it holds characters that the files cannot.
std::optional<std::string> ShowInput(const std::string& prompt, const std::string& title, const std::string& preset) {
    QString typed = FromText(preset);
    for (;;) {
        QInputDialog box(QApplication::activeWindow());
        box.setObjectName(QStringLiteral("InputBox"));
        box.setWindowTitle(QString::fromStdString(title));
        box.setLabelText(Shown(prompt));
        box.setTextValue(typed);
        box.resize(420, box.sizeHint().height());
        KeepInFront(box);
        if (box.exec() != QDialog::Accepted) return std::nullopt;
        typed = box.textValue();
        if (auto text = TextToSave(typed)) return text;
    }
}
}  // namespace

void InstallBoxes() { SetDialogs({ShowBox, ShowInput}); }
