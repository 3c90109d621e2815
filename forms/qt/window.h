// What every window does: its name, its controls' names, one instance a class, closing with a question, placing.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <typeinfo>

class QListWidget;
class QComboBox;

/// Twips to logical pixels: 15 to one at 100 %.
constexpr int Pixels(double twips) { return static_cast<int>(twips / 15.0 + (twips < 0 ? -0.5 : 0.5)); }
constexpr int Twips(int pixels) { return pixels * 15; }

/// A window of the program. It is deleted when it closes, and is found by its class while it is open.
class Window : public QWidget {
    Q_OBJECT

  public:
    /// `name` is the class's own name ("frmNotes"); `caption` the title bar's text.
    Window(const char* name, const QString& caption);
    ~Window() override;

    /// Asked before the window closes; false keeps it open.
    virtual bool queryUnload() { return true; }

  protected:
    /// Runs once, after the question and before the window goes.
    virtual void unload() {}
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    bool unloaded_ = false;
};

/// The open window of the class, or null.
template <class W>
W* OpenedWindow();

/// The open window of the class, made first if there is none. It is not shown yet.
template <class W>
W* LoadedWindow();

/// Shows the window of the class in front of the others, made first if there is none.
template <class W>
W* ShowWindow();

/// The program's main window, to which the others belong; null before there is one.
QWidget* MainWindow();
void SetMainWindow(QWidget* window);

/// Closes every window of the program but the one given, without asking. For the end of the program.
void UnloadAllWindows(const QWidget* but = nullptr);

/// Keeps the window above those of the program and of others, and shows it without taking the focus.
void MakeMeTopmost(QWidget* window);
void CenterOnScreen(QWidget* window);

/// Places a window, its frame's corner at the place's; one that would open where no screen is comes to where it can be
/// seen, and one larger than its screen shrinks.
void PlaceOnScreens(QWidget* window, QRect wanted);

/// Gives a control the name it is known by, and the name that assistive programs speak (its caption if empty).
template <class Control>
Control* Named(Control* control, const QString& name, const QString& spoken = {}) {
    control->setObjectName(name);
    if (!spoken.isEmpty()) control->setAccessibleName(spoken);
    return control;
}

/// "name(index)": an element of an array of controls.
QString ElementName(const char* name, int index);

/// The caption without the marks of its access key.
QString WithoutMnemonic(const QString& caption);

// -- Implementation of the templates --------------------------------------------------------------------------------

namespace windows {
QWidget* find(const std::type_info& type);
void present(QWidget* window);
}  // namespace windows

template <class W>
W* OpenedWindow() {
    return static_cast<W*>(windows::find(typeid(W)));
}

template <class W>
W* LoadedWindow() {
    W* window = OpenedWindow<W>();
    return window != nullptr ? window : new W;
}

template <class W>
W* ShowWindow() {
    W* window = LoadedWindow<W>();
    windows::present(window);
    return window;
}
