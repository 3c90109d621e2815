// The six-month view: six months, also over a year's end, each with a button that opens it.
#pragma once

#include "calendar/frmMonthsWindow.h"

class frm6Months : public MonthsWindow {
    Q_OBJECT

  public:
    frm6Months();

  protected:
    void layOut() override;
    void goNext() override;
    void goPrevious() override;
};
