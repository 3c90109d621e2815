// The floor of start-up: the cheapest honest program of the same toolkit. A main window with as many menu items as the
// planner's, an MDI area, and in it one child that paints a picture of the year view's size. It prints nothing; its
// window's title tells bench/start.py that it is on the screen.
#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QWidget>

namespace {
constexpr int MenuItems = 110;
constexpr QSize YearSize(786, 500);

class Child : public QWidget {
  public:
    Child() : picture_(YearSize, QImage::Format_RGB32) {
        picture_.fill(Qt::white);
        QPainter painter(&picture_);
        for (int day = 0; day < 365; ++day)
            painter.drawText(QRect(day % 28 * 28, day / 28 * 36, 28, 20), Qt::AlignCenter,
                             QString::number(day % 31 + 1));
    }

  protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, picture_); }

  private:
    QImage picture_;
};
}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Tasmoro floor"));
    for (int menu = 0; menu < 10; ++menu) {
        QMenu* opened = window.menuBar()->addMenu(QStringLiteral("Menu &%1").arg(menu));
        for (int item = 0; item < MenuItems / 10; ++item) opened->addAction(QStringLiteral("Item %1").arg(item));
    }
    auto* area = new QMdiArea;
    window.setCentralWidget(area);
    auto* child = area->addSubWindow(new Child);
    child->resize(YearSize);
    window.setWindowState(Qt::WindowMaximized);
    window.show();
    return QApplication::exec();
}
