// The one-year view: twelve small months, each with a button that opens it.
#pragma once

#include "calendar/frmMonthsWindow.h"

class frmYear : public MonthsWindow {
    Q_OBJECT

  public:
    frmYear();

  protected:
    void layOut() override;
    void goNext() override;
    void goPrevious() override;
};
