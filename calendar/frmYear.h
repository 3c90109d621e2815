// The one-year view: twelve small months, each with a button that opens it.
#pragma once

#include "calendar/frmMonthsWindow.h"

class frmYear : public MonthsWindow {
    Q_OBJECT

  public:
    frmYear();
    void captionMonth(int index, const QString& caption) override;

  protected:
    void layOut() override;
    void goNext() override;
    void goPrevious() override;

  private:
    void cmdMonth_Click(int index);

    std::array<QPushButton*, 12> cmdMonth{};
};
