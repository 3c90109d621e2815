// The one-year view.
#include "calendar/frmYear.h"

#include "calendar/modNavigation.h"

namespace {
constexpr int GridsInRow = 4;
}

frmYear::frmYear() : MonthsWindow("frmYear", QStringLiteral("12 Month View"), 12, 12) {
    for (int i = 0; i < 12; ++i) {
        auto* button = Named(new QPushButton(picMain), ElementName("cmdMonth", i));
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [this, i] { cmdMonth_Click(i); });
        cmdMonth[static_cast<std::size_t>(i)] = button;
    }
    QWidget::setTabOrder(cmdMonth.back(), cmdPrev);
    QWidget::setTabOrder(cmdPrev, cmdNext);
}

void frmYear::captionMonth(int index, const QString& caption) {
    QPushButton* button = cmdMonth.at(static_cast<std::size_t>(index));
    button->setText(caption);
    button->setAccessibleName(caption);
    button->setToolTip(QStringLiteral("Go to %1's Calendar").arg(caption));
    picture(index)->setAccessibleName(caption);
}

void frmYear::layOut() {
    const int zoomedWidth = static_cast<int>(ViewWidth / 15 * zoom());
    const int zoomedHeight = static_cast<int>(ViewHeight / 15 * zoom());
    picMain->setGeometry((width() - zoomedWidth) / 2, (height() - zoomedHeight) / 2, zoomedWidth, zoomedHeight);
    for (int i = 0; i < 12; ++i) {
        const double left = 150 + 2925 * (i % GridsInRow);
        const double top = 450 + 2340 * (i / GridsInRow);
        place(picture(i), left, top, 2700, 1920);
        place(cmdMonth[static_cast<std::size_t>(i)], left + 210, top - 330, 2355, 300);
    }
    place(picNav, ViewWidth / 2.0 - 1350, 7090, 2700, 370);
}

void frmYear::goNext() { ShowNeighbourYear(1); }
void frmYear::goPrevious() { ShowNeighbourYear(-1); }
void frmYear::cmdMonth_Click(int index) { OpenShownMonth(index); }
