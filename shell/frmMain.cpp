// The main window.
#include "shell/frmMain.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "base/clock.h"
#include "base/text.h"
#include "calendar/frm6Months.h"
#include "calendar/frmMonth.h"
#include "calendar/frmYear.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "forms/qt/dateBoxes.h"
#include "forms/qt/fittingLabel.h"
#include "forms/qt/leaving.h"
#include "forms/qt/lists.h"
#include "forms/qt/picker.h"
#include "forms/qt/text.h"
#include "marks/modCategories.h"
#include "marks/modMarkCommands.h"
#include "marks/modSaveChanges.h"
#include "notes/frmHelpPanel.h"
#include "notes/frmNotes.h"
#include "notes/frmToDoPanel.h"
#include "notes/modHelp.h"
#include "notes/modNotes.h"
#include "notes/modToDo.h"
#include "reminders/frmAlert.h"
#include "reminders/frmBDay.h"
#include "reminders/frmHolidays.h"
#include "reminders/modAlerts.h"
#include "reminders/modBirthdays.h"
#include "shell/modErrors.h"
#include "shell/modStart.h"

namespace {
constexpr int TopStripHeight = 495;  // twips
constexpr int RightPanelWidth = 3450;
constexpr int StatusStripHeight = 360;

/// Shows a panel in the place that is kept for it.
void PutIn(QWidget* place, QWidget* panel, const QMargins& margins) {
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(margins);
    layout->addWidget(panel);
    panel->show();
}

/// On one line where there is room for it, on several where there is not: it does not make its window wider.
class WrappedLabel : public QLabel {
  public:
    explicit WrappedLabel(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
    QSize sizeHint() const override { return {fontMetrics().horizontalAdvance(text()) + 2, fontMetrics().height()}; }
};

QLabel* Label(const QString& name, const QString& text, QWidget* parent) {
    auto* label = Named(new QLabel(text, parent), name);
    label->setTextFormat(Qt::PlainText);
    return label;
}
}  // namespace

frmMain::frmMain() : Window("frmMain", QStringLiteral("Tasmoro")) {
    SetMainWindow(this);
    middle_ = Named(new QWidget(this), QStringLiteral("Calendar"));
    auto* inMiddle = new QVBoxLayout(middle_);
    inMiddle->setContentsMargins(0, 0, 0, 0);
    buildTopStrip();
    buildRightPanel();
    buildBottomPanels();
    buildMenus();
    layOutParts();
    fillShellCalls();
    fillReminderHooks();
}

// Nobody calls a window that is gone.
frmMain::~frmMain() {
    Shell = {};
    ShowCategoriesInMenus = nullptr;
    OpenBirthdayManager = OpenHolidayManager = nullptr;
    ShowAlertIndicator = ShowBirthdayIndicator = ShowPendingAlerts = ShowPendingBirthdays = nullptr;
}

// -- Building -------------------------------------------------------------------------------------------------------

void frmMain::buildMenus() {
    auto* bar = Named(new QMenuBar(this), QStringLiteral("MenuBar"), QStringLiteral("Menus"));
    menus_.build(bar, MainMenuTable());
    ShowCategoriesInMenus = [this] {
        for (int k = 0; k < CategoryCount; ++k) {
            const auto category = static_cast<std::size_t>(k);
            const QString caption = FromText(MarkerCaption[category]).replace(QLatin1Char('&'), QStringLiteral("&&"));
            menus_[ElementName("mnuEditMark", k)]->setText(caption);
            menus_[ElementName("mnuEditMark", k)]->setChecked(!MarkerHidden[category]);
            const int markAs = k < QuickMarksCategory ? k : k > TodaysDateCategory ? k - 2 : -1;
            if (markAs >= 0) menus_[ElementName("mnuOptDateMarkAs", markAs)]->setText(caption);
        }
    };
}

void frmMain::addPicker(QComboBox*& box, const QString& name, const QString& spoken, Picker* picker) {
    box = Named(picker, name, spoken);
    box->setToolTip(spoken);
    box->lineEdit()->setObjectName(name + QStringLiteral("_text"));
    box->lineEdit()->setAccessibleName(spoken);
    box->installEventFilter(this);  // it has the focus: keys are sent to it, not to its line edit
    picTop->layout()->addWidget(box);
}

void frmMain::buildTopStrip() {
    picTop = Named(new QWidget(this), QStringLiteral("picTop"), QStringLiteral("Date and view"));
    picTop->setMinimumHeight(Pixels(TopStripHeight));
    auto* row = new QHBoxLayout(picTop);
    row->setContentsMargins(8, 2, 8, 2);
    row->setSpacing(4);
    row->addWidget(Label(QStringLiteral("lblSelect"), QStringLiteral("Select >"), picTop));
    addPicker(cmbMonth, QStringLiteral("cmbMonth"), QStringLiteral("Month"),
              new Picker(MonthNames(), QStringLiteral("September"), true, picTop));
    addPicker(cmbDay, QStringLiteral("cmbDay"), QStringLiteral("Day"),
              new Picker(DayNumbers(), QStringLiteral("30"), true, picTop));
    // It offers nothing: "20" is 2020, not the first year of the list that begins so.
    addPicker(cmbYear, QStringLiteral("cmbYear"), QStringLiteral("Year"),
              new Picker(ListedYears(), QStringLiteral("2000"), false, picTop));
    cmbMonth->setMaxVisibleItems(12);
    cmbDay->setMaxVisibleItems(16);
    cmbYear->setMaxVisibleItems(13);
    new Leaving(cmbYear, [this] { cmbYear_LostFocus(); });
    const std::array<QString, 2> optTips{QStringLiteral("Advance Calendar to Selected Date"),
                                         QStringLiteral("Open Notes for Selected Date")};
    for (std::size_t i = 0; i < 2; ++i) {
        imgOpt[i] = Named(new PictureButton(i == 0 ? Picture::Advance : Picture::OpenNotes, optTips[i], picTop),
                          ElementName("imgOpt", static_cast<int>(i)), optTips[i]);
        row->addWidget(imgOpt[i]);
    }
    connect(imgOpt[0], &PictureButton::clicked, this, [] { ShowViewOfPickers("imgOpt_Click", 0); });
    connect(imgOpt[1], &PictureButton::clicked, this, [] { OpenNotesOfPickers("imgOpt_Click"); });
    row->addSpacing(12);
    row->addWidget(Label(QStringLiteral("Label1"), QStringLiteral("Months >"), picTop));
    const std::array<QString, 3> calTips{QStringLiteral("View 1 Month Calendar"),
                                         QStringLiteral("View 6 Month Calendar"),
                                         QStringLiteral("View Yearly Calendar")};
    constexpr std::array<Picture, 3> CalPictures{Picture::Month, Picture::SixMonths, Picture::Year};
    constexpr std::array<int, 3> Views{1, 6, 12};
    for (std::size_t i = 0; i < 3; ++i) {
        imgCal[i] = Named(new PictureButton(CalPictures[i], calTips[i], picTop),
                          ElementName("imgCal", static_cast<int>(i)), calTips[i]);
        connect(imgCal[i], &PictureButton::clicked, this,
                [view = Views[i]] { ShowViewOfPickers("imgCal_Click", view); });
        row->addWidget(imgCal[i]);
    }
    row->addSpacing(12);
    lblTemplate = Named(new WrappedLabel(picTop), QStringLiteral("lblTemplate"));
    lblTemplate->setText(QStringLiteral("Template = Standard"));
    row->addWidget(lblTemplate);
    lblTemplate->hide();
    row->addStretch(1);
    buildIndicators(picTop);
}

void frmMain::buildIndicators(QWidget* strip) {
    auto* row = static_cast<QHBoxLayout*>(strip->layout());
    imgNotes = Named(new PictureLabel(Picture::Notes, strip), QStringLiteral("imgNotes"),
                     QStringLiteral("Signifies Notes Exists for Hover Date"));
    imgNotes->setToolTip(QStringLiteral("Signifies Notes Exists for Hover Date"));
    QSizePolicy keepsPlace = imgNotes->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    imgNotes->setSizePolicy(keepsPlace);
    imgNotes->hide();
    row->addWidget(imgNotes);
    imgBDay = Named(new PictureButton(Picture::NoBirthdays, QStringLiteral("No Birthdays Pending"), strip),
                    QStringLiteral("imgBDay(0)"), QStringLiteral("No Birthdays Pending"));
    connect(imgBDay, &PictureButton::clicked, this, [] { ShowWindow<frmBDay>(); });
    row->addWidget(imgBDay);
    imgAlert = Named(new PictureButton(Picture::NoAlerts, QStringLiteral("No Alerts Exist"), strip),
                     QStringLiteral("imgAlert(0)"), QStringLiteral("No Alerts Exist"));
    connect(imgAlert, &PictureButton::clicked, this, [] { OpenAlertManager(true); });
    row->addWidget(imgAlert);
    cmdAlert = Named(new QPushButton(QStringLiteral("No Pending Alerts"), strip), QStringLiteral("cmdAlert"));
    cmdAlert->setToolTip(QStringLiteral("Click to View"));
    cmdAlert->installEventFilter(this);
    connect(cmdAlert, &QPushButton::clicked, this, [] { OpenAlertManager(true); });
    row->addWidget(cmdAlert);
}

void frmMain::buildRightPanel() {
    picRight =
        Named(new QWidget(this), QStringLiteral("picRight"), QStringLiteral("Pending alerts, birthdays and help"));
    picRight->setFixedWidth(Pixels(RightPanelWidth));
}

QWidget* frmMain::makeRightPanel() {
    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(6, 4, 8, 4);
    column->setSpacing(3);
    const auto list = [&](const char* label, const char* caption, const char* name, QLabel*& date, const char* dateName,
                          const char* dateCaption) {
        column->addWidget(Label(QString::fromLatin1(label), QString::fromLatin1(caption), panel));
        auto* box = Named(new ListBox(panel), QString::fromLatin1(name), QString::fromLatin1(caption));
        box->setMinimumHeight(60);
        column->addWidget(box, 3);
        column->addWidget(date = Label(QString::fromLatin1(dateName), QString::fromLatin1(dateCaption), panel));
        column->addSpacing(4);
        return box;
    };
    lstAlerts = list("lblAlerts", "Pending Alerts: Sorted by Message", "lstAlerts", lblAlertDate, "lblAlertDate",
                     "Alert Date =");
    lstBirthdays = list("lblBirthdays", "Pending Birthdays: Sorted by Name", "lstBirthdays(1)", lblBirthdayDate,
                        "lblBirthdayDate", "Date =");
    connect(lstAlerts, &QListWidget::currentRowChanged, this, &frmMain::lstAlerts_Click);
    connect(lstBirthdays, &QListWidget::currentRowChanged, this, &frmMain::lstBirthdays_Click);
    // Clicked again, a row tells again: the label may be without a date meanwhile.
    connect(lstAlerts, &QListWidget::itemClicked, this, &frmMain::lstAlerts_Click);
    connect(lstBirthdays, &QListWidget::itemClicked, this, &frmMain::lstBirthdays_Click);
    column->addWidget(Named(new HelpPanel(panel), QStringLiteral("HelpPanel"), QStringLiteral("Help")), 5);
    ShowPendingAlerts = [this] {
        ShowEntries(lstAlerts, PendingAlertEntries);
        lstAlerts->setCurrentRow(-1);  // another entry may be in the row
        lblAlertDate->setText(QStringLiteral("Alert Date ="));
    };
    ShowPendingBirthdays = [this] {
        ShowEntries(lstBirthdays, PendingBirthdayEntries);
        lstBirthdays->setCurrentRow(-1);
        lblBirthdayDate->setText(QStringLiteral("Date ="));
    };
    return panel;
}

void frmMain::buildBottomPanels() {
    for (int i = 0; i < 2; ++i)
        picBottom[static_cast<std::size_t>(i)] = Named(new QWidget(this), ElementName("picBottom", i),
                                                       i == 0 ? QStringLiteral("Status") : QStringLiteral("To do"));
    picBottom[0]->setMinimumHeight(Pixels(StatusStripHeight));
    auto* row = new QHBoxLayout(picBottom[0]);
    row->setContentsMargins(8, 2, 8, 2);
    row->addWidget(lblDate = Label(QStringLiteral("lblDate"), {}, picBottom[0]));
    row->addSpacing(24);
    lblHoliday =
        Named(new FittingLabel(QStringLiteral("Holiday = None Chosen"), picBottom[0]), QStringLiteral("lblHoliday"));
    row->addWidget(lblHoliday, 1);
    row->addWidget(Label(QStringLiteral("lblCurPos"), QStringLiteral("Text Position ="), picBottom[0]));
    row->addWidget(lblMonth = Label(QStringLiteral("lblMonth"), {}, picBottom[0]));
    row->addWidget(lblX = Label(QStringLiteral("lblX"), {}, picBottom[0]));
    row->addWidget(lblY = Label(QStringLiteral("lblY"), {}, picBottom[0]));
    lblDate->installEventFilter(this);
    picBottom[1]->setFixedHeight(ToDoPanel::HeightWith(fontMetrics()) + 6);
}

void frmMain::layOutParts() {
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->setMenuBar(findChild<QMenuBar*>());
    all->addWidget(picTop);
    auto* across = new QHBoxLayout;
    across->setSpacing(0);
    across->addWidget(middle_, 1);
    across->addWidget(picRight);
    all->addLayout(across, 1);
    all->addWidget(picBottom[1]);
    all->addWidget(picBottom[0]);
    middle_->setMinimumSize(Pixels(ViewWidth) / 2, Pixels(ViewHeight) / 2);
}

// -- What the modules ask of the window -------------------------------------------------------------------------------

void frmMain::fillShellCalls() {
    Shell = {};
    Shell.openView = [this](int view) { return openView(view); };
    Shell.showDrawn = [this] {
        if (calendar_ != nullptr) calendar_->showDrawn();
    };
    Shell.setCaption = [this](const std::string& caption) { setWindowTitle(FromText(caption)); };
    Shell.enableItem = [this](const char* item, bool enabled) { menus_.enable(QString::fromLatin1(item), enabled); };
    Shell.showInPickers = [this](Date date) {
        ShowDateInBoxes(cmbMonth, cmbDay, cmbYear, date, "d");
        for (auto* box : {cmbMonth, cmbDay, cmbYear}) box->lineEdit()->deselect();
    };
    Shell.dateOfPickers = [this] {
        return DateOfPickerTexts(ToText(cmbMonth->currentText()), ToText(cmbDay->currentText()),
                                 ToText(cmbYear->currentText()));
    };
    Shell.showHolidayLabel = [this](const std::string& text) { lblHoliday->setText(FromText(text)); };
    Shell.showPosition = [this](Cell cell) {
        lblMonth->setText(QString::number(cell.month));
        lblX->setText(QString::number(cell.column));
        lblY->setText(QString::number(cell.row));
    };
    Shell.showNoteButton = [this](bool hasNote) {
        imgOpt[1]->setHasContent(hasNote);
        imgNotes->setVisible(hasNote);
    };
    Shell.showTemplateLabel = [this](const std::string& text) {
        lblTemplate->setText(FromText(text));
        lblTemplate->setVisible(!text.empty());
    };
    Shell.pressViewButton = [this](int view) {
        constexpr std::array<int, 3> Views{1, 6, 12};
        for (std::size_t i = 0; i < 3; ++i) imgCal[i]->setLatched(Views[i] == view);
    };
    Shell.captionMonth = [this](int index, const std::string& caption) {
        if (calendar_ != nullptr) calendar_->captionMonth(index, FromText(caption));
    };
    Shell.layOutMonth = [](bool templateMode) {
        if (auto* month = OpenedWindow<frmMonth>()) month->setTemplateMode(templateMode);
    };
    Shell.popUpDateOptions = [this](int x, int y) {
        menus_.menu(QStringLiteral("mnuDateOptions"))->popup(QPoint(x, y));
    };
}

void frmMain::fillReminderHooks() {
    OpenBirthdayManager = OpenBirthdayManagerFor;
    OpenHolidayManager = OpenHolidayManagerFor;
    ShowAlertIndicator = [this] { showAlertIndicator(); };
    ShowBirthdayIndicator = [this] { showBirthdayIndicator(); };
}

std::vector<Canvas*> frmMain::openView(int view) {
    MonthsWindow* window = nullptr;
    const auto loaded = [&](bool wanted, auto* open, auto make) {
        if (wanted) {
            window = open != nullptr ? open : make();
        } else if (open != nullptr) {
            middle_->setFocus();  // from a view that goes, the focus would wander into the lists beside it
            open->close();
        }
    };
    loaded(view == 1, OpenedWindow<frmMonth>(), [] { return new frmMonth; });
    loaded(view == 6, OpenedWindow<frm6Months>(), [] { return new frm6Months; });
    loaded(view == 12, OpenedWindow<frmYear>(), [] { return new frmYear; });
    calendar_ = window;
    if (window == nullptr) return {};
    if (window->parentWidget() != middle_) {
        layout()->activate();
        middle_->layout()->addWidget(window);
        window->resize(middle_->size());
        window->fit();  // before it is drawn, so that it is drawn once
        window->show();
        window->setFocus();
    }
    return window->canvases();
}

// -- Start and end --------------------------------------------------------------------------------------------------

void frmMain::sizeToScreen() {
    const QSize screenSize = screen()->size();
    if (Twips(screenSize.width()) < 15360 || Twips(screenSize.height()) < 11520) {
        resize(Pixels(12000), Pixels(9000));
        return;
    }
    // The size it will have, but for the frame: the calendar is then drawn once and not again when the frame comes.
    constexpr int FrameHeight = 24;
    resize(screen()->availableSize() - QSize(0, FrameHeight));
    setWindowState(Qt::WindowMaximized);
}

void frmMain::startUp() {
    showCalendar();
    fillPanels();
}

void frmMain::showCalendar() {
    arrangePanels();
    InstallNoteEditor();
    LoadPlanner();
    Tell(Shell.showInPickers, SelectedDate);
    Show1YearCalendar();
    lblDate->setText(FromText("Today is " + LongDate(Today())));
    menus_.enable(QStringLiteral("mnuOptDateClearMark"), false);
    menus_.enable(QStringLiteral("mnuOptDateAttachHoverText"), false);
    calendarShown_ = true;
    update();
}

void frmMain::fillPanels() {
    // A panel is shown when everything is in it: it is laid out and painted once.
    Reporting("ReadHelpTopics", ReadHelpTopics);
    QWidget* right = makeRightPanel();
    FillPendingBirthdayList();
    FillPendingAlertList();
    ReadToDoList();
    auto* toDo = Named(new ToDoPanel, QStringLiteral("ToDoPanel"), QStringLiteral("To Do List"));
    PutIn(picRight, right, {});
    PutIn(picBottom[1], toDo, {8, 2, 8, 4});
    // From here on the panel itself asks for its height, and follows its font.
    picBottom[1]->setMinimumHeight(0);
    picBottom[1]->setMaximumHeight(QWIDGETSIZE_MAX);
    picBottom[1]->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void frmMain::paintEvent(QPaintEvent* event) {
    Window::paintEvent(event);
    // While a file is being reported at start, the window is painted without its calendar.
    if (!calendarShown_ || std::exchange(painted_, true)) return;
    // Behind the event, when the picture of the window has reached the screen.
    QTimer::singleShot(0, this, [this] { Q_EMIT firstPainted(); });
}

namespace {
/// Closes the windows that stand by themselves, each through its own question; false as soon as one is kept open.
bool CloseOtherWindows(const QWidget* main) {
    std::vector<QPointer<Window>> others;  // one that closes may take another with it
    for (QWidget* each : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(each); window != nullptr && window != main)
            others.emplace_back(window);
    return std::all_of(others.begin(), others.end(),
                       [](const auto& window) { return window == nullptr || window->isHidden() || window->close(); });
}
}  // namespace

bool frmMain::queryUnload() { return MayGoOn(true) && CloseOtherWindows(this); }

void frmMain::unload() {
    UnloadAllWindows(this);
    QApplication::quit();
}

// -- Events ---------------------------------------------------------------------------------------------------------

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && qobject_cast<QComboBox*>(watched) != nullptr) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            cmbYear_LostFocus();
            imgOpt[0]->click();
            return true;
        }
    }
    if (event->type() == QEvent::MouseButtonPress && watched == cmdAlert) {
        const auto button = static_cast<QMouseEvent*>(event)->button();
        if (button != Qt::LeftButton) IgnorePendingAlerts();
    }
    if (event->type() == QEvent::ContextMenu && watched == cmdAlert &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        IgnorePendingAlerts();  // the menu key is the keyboard's right click
        return true;
    }
    if (event->type() == QEvent::ToolTip && watched == lblDate)
        lblDate->setToolTip(FromText("The time is now " + FormatTime(Now().second, "hh:mm:ss AM/PM ")));
    return Window::eventFilter(watched, event);
}

void frmMain::cmbYear_LostFocus() {
    const QString full = FromText(FullYearText(ToText(cmbYear->currentText())));
    if (full != cmbYear->currentText()) cmbYear->setEditText(full);
}

void frmMain::lstAlerts_Click() {
    const std::string date = PendingAlertDate(EntryAt(lstAlerts, lstAlerts->currentRow()));
    if (!date.empty()) lblAlertDate->setText(FromText(date));
}

void frmMain::lstBirthdays_Click() {
    const std::string date = PendingBirthdayDate(EntryAt(lstBirthdays, lstBirthdays->currentRow()));
    if (!date.empty()) lblBirthdayDate->setText(FromText(date));
}

void frmMain::showAlertIndicator() {
    imgAlert->setPicture(AlertIndicator.pending ? Picture::Alerts : Picture::NoAlerts);
    imgAlert->setToolTip(FromText(AlertIndicator.imageToolTip));
    imgAlert->setAccessibleName(FromText(AlertIndicator.imageToolTip));
    cmdAlert->setText(FromText(AlertIndicator.caption));
    cmdAlert->setToolTip(FromText(AlertIndicator.toolTip));
    // Yellow with black letters whatever the theme; otherwise the theme's own button.
    QPalette colors;
    if (AlertIndicator.pending) {
        colors.setColor(QPalette::Button, FromColor(0x00FFFF));
        colors.setColor(QPalette::ButtonText, Qt::black);
    }
    cmdAlert->setPalette(colors);
}

void frmMain::showBirthdayIndicator() {
    imgBDay->setPicture(BirthdayIndicator.pending ? Picture::Birthdays : Picture::NoBirthdays);
    const QString tip = FromText(BirthdayIndicator.toolTip);
    imgBDay->setToolTip(tip);
    imgBDay->setAccessibleName(tip);
}

void frmMain::resizeEvent(QResizeEvent* event) {
    Window::resizeEvent(event);
    arrangePanels();
}

void frmMain::arrangePanels() {
    picRight->setVisible(Twips(width()) >= Twips(picRight->width()) + ViewWidth);
    const int toDoHeight = Twips(ToDoPanel::HeightWith(fontMetrics()));
    picBottom[1]->setVisible(Twips(height()) >=
                             Twips(picBottom[0]->sizeHint().height()) + ViewHeight + toDoHeight + TopStripHeight);
}
