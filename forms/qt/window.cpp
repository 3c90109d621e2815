// What every window does.
#include "forms/qt/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <vector>

namespace {
std::vector<Window*>& OpenWindows() {
    static std::vector<Window*> open;
    return open;
}
QPointer<QWidget> TheMainWindow;
}  // namespace

QWidget* MainWindow() { return TheMainWindow; }
void SetMainWindow(QWidget* window) { TheMainWindow = window; }

Window::Window(const char* name, const QString& caption) {
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(caption);
    setAccessibleName(caption);
    setAttribute(Qt::WA_DeleteOnClose);
    OpenWindows().push_back(this);
}

// A window that stands in another one goes with it, without being closed.
Window::~Window() { std::erase(OpenWindows(), this); }

bool Window::event(QEvent* event) {
    // A button that has the focus is pressed by Enter as well as by the space bar.
    if (event->type() == QEvent::Polish)
        for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(true);
    return QWidget::event(event);
}

void Window::closeEvent(QCloseEvent* event) {
    if (unloaded_) return;
    if (!queryUnload()) {
        event->ignore();
        return;
    }
    unloaded_ = true;
    std::erase(OpenWindows(), this);
    unload();
    QWidget::closeEvent(event);
}

QWidget* windows::find(const std::type_info& type) {
    for (Window* window : OpenWindows())
        if (typeid(*window) == type) return window;
    return nullptr;
}

namespace {
/// A window that was given no place of its own opens in the middle of the main window.
void PlaceOver(const QWidget* main, QWidget* window) {
    if (window->isVisible() || window->testAttribute(Qt::WA_Moved)) return;
    QRect place(QPoint(), window->testAttribute(Qt::WA_Resized) ? window->size() : window->sizeHint());
    place.moveCenter(main->geometry().center());
    PlaceOnScreens(window, place);
}
}  // namespace

void windows::present(QWidget* window) {
    // Windows stay in front of the main window and go with it, as its own.
    if (QWidget* main = MainWindow(); main != nullptr && window != main && window->isWindow()) {
        PlaceOver(main, window);
        window->winId();
        window->windowHandle()->setTransientParent(main->windowHandle());
    }
    if (window->isMinimized())
        window->showNormal();
    else
        window->show();
    window->raise();
    window->activateWindow();
}

void UnloadAllWindows(const QWidget* but) {
    const std::vector<Window*> open = OpenWindows();
    for (Window* window : open) {
        if (window == but || std::find(OpenWindows().begin(), OpenWindows().end(), window) == OpenWindows().end())
            continue;
        std::erase(OpenWindows(), window);
        delete window;
    }
}

void MakeMeTopmost(QWidget* window) {
    window->setWindowFlag(Qt::WindowStaysOnTopHint);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->show();
}

void CenterOnScreen(QWidget* window) {
    if (window->isMinimized()) return;
    const QRect screen = window->screen()->availableGeometry();
    window->move(screen.left() + (screen.width() - window->width()) / 2,
                 screen.top() + (screen.height() - window->height()) / 2);
}

namespace {
/// What a frame adds to a window's size: the main window's stands for all, a new one is not known before it is shown.
QSize FrameAround() {
    const QWidget* main = MainWindow();
    return main == nullptr ? QSize(0, 0) : main->frameGeometry().size() - main->geometry().size();
}
}  // namespace

void PlaceOnScreens(QWidget* window, QRect wanted) {
    const QScreen* screen = QApplication::screenAt(wanted.center());
    if (screen == nullptr) screen = QApplication::primaryScreen();
    const QRect all = screen->availableGeometry();
    const QRect room(all.topLeft(), all.size() - FrameAround());
    wanted.setSize(wanted.size().boundedTo(room.size()));
    wanted.moveLeft(std::clamp(wanted.left(), room.left(), room.right() - wanted.width() + 1));
    wanted.moveTop(std::clamp(wanted.top(), room.top(), room.bottom() - wanted.height() + 1));
    window->resize(wanted.size());
    window->move(wanted.topLeft());
}

QString ElementName(const char* name, int index) {
    return QString::fromLatin1(name) + QLatin1Char('(') + QString::number(index) + QLatin1Char(')');
}

QString WithoutMnemonic(const QString& caption) {
    QString plain = caption;
    return plain.remove(QLatin1Char('&'));
}
