// The window of frequently used terms.
#include "notes/frmFUT.h"

#include <QBoxLayout>
#include <QDrag>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>

#include "base/dialogs.h"
#include "forms/qt/text.h"
#include "notes/frmAddFUT.h"
#include "notes/frmEditFUT.h"
#include "notes/frmNotes.h"
#include "notes/modFUT.h"
#include "shell/modPreferences.h"

namespace {
constexpr int ListMargin = Pixels(75);
constexpr int PanelGap = Pixels(210);
constexpr int SmallestHeight = Pixels(2000);  // of a window whose lists can still be used
constexpr int SmallestWidth = Pixels(1500);   // of one that is opened

void SelectOnly(QListWidget* list, int row) { list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect); }
}  // namespace

// -- The list -------------------------------------------------------------------------------------------------------

TermsList::TermsList() {
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
    setUniformItemSizes(true);
}

void TermsList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Insert)
        Q_EMIT insertPressed();
    else if (event->key() != Qt::Key_Right)
        ListBox::keyPressEvent(event);
}

void TermsList::startDrag(Qt::DropActions) {
    if (currentItem() == nullptr) return;
    DraggedTerm = EntryAt(this, currentRow());
    auto* carried = new QMimeData;
    carried->setData(QLatin1String(DraggedTermType), QByteArray::fromStdString(DraggedTerm));
    auto* drag = new QDrag(this);
    drag->setMimeData(carried);
    drag->exec(Qt::CopyAction);
    DraggedTerm.clear();
}

// -- The window -----------------------------------------------------------------------------------------------------

frmFUT::frmFUT() : Window("frmFUT", QStringLiteral("Frequent Terms")) {
    TermsWindowOpen = true;
    makeControls();
    buildMenus();
    layOut();
    ShowTerms = [this] { showTerms(); };
    ReadTermsOnOpening();
    showTerms();
}

frmFUT::~frmFUT() {
    if (OpenedWindow<frmFUT>() != nullptr) return;
    ShowTerms = {};
    TermsWindowOpen = false;
}

void frmFUT::makeControls() {
    lstFUT = Named(new TermsList, QStringLiteral("lstFUT"), QStringLiteral("Frequently used terms"));
    lstMoreFUT = Named(new ListBox, QStringLiteral("lstMoreFUT"), QStringLiteral("Lists of terms"));
    lstMoreFUT->installEventFilter(this);
    picOpt = Named(new QWidget, QStringLiteral("picOpt"));
    static constexpr std::array Options{"Add New Term to List", "Edit Selected Term", "Disable Auto Complete",
                                        "Remove Selected Term"};
    for (int i = 0; i < static_cast<int>(Options.size()); ++i) {
        const QString caption = QString::fromLatin1(Options[static_cast<std::size_t>(i)]);
        auto*& button = cmdOpt[static_cast<std::size_t>(i)];
        button = Named(new QPushButton(caption), ElementName("cmdOpt", i), caption);
        connect(button, &QPushButton::clicked, this, [this, i] { cmdOpt_Click(i); });
    }
    static constexpr std::array Cases{"abc", "Abc", "ABC"};
    static constexpr std::array Spoken{"All terms in small letters", "All terms with capital initials",
                                       "All terms in capitals"};
    for (int i = 0; i < static_cast<int>(Cases.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        cmdCase[at] = Named(new QPushButton(QString::fromLatin1(Cases[at])), ElementName("cmdCase", i),
                            QString::fromLatin1(Spoken[at]));
        cmdCase[at]->setToolTip(QString::fromLatin1(Spoken[at]));
        connect(cmdCase[at], &QPushButton::clicked, this, [i] { ConvertTerms(static_cast<TermCase>(i)); });
    }
    connect(lstFUT, &TermsList::insertPressed, this, [this] { lstFUT_InsertTerm(); });
    connect(lstMoreFUT, &QListWidget::itemClicked, this, [this] { lstMoreFUT_Choose(); });
}

void frmFUT::buildMenus() {
    menus_.build(
        new QMenuBar(this),
        {Without("mnuFile", "&File", ""),
         With("mnuFileShowAll", "Show All Frequent Terms Files", "mnuFile", ShowTermsFiles),
         With("mnuFileNewFUT", "Create &New Frequent Terms File", "mnuFile", [this] { mnuFileNewFUT_Click(); }),
         With("mnuFileDelete", "Delete this Frequent Terms List", "mnuFile", DeleteTermsFile),
         With("mnuFileDefaultFUT", "Make this the Default Frequent Terms List", "mnuFile", MakeTermsFileDefault),
         Without("mnuEdit", "&Edit", ""), With("mnuEditClear", "Delete all Items in this List", "mnuEdit", ClearTerms),
         Without("mnuWindow", "&Window", ""),
         With("mnuWindowSavePosition", "Save Window Position and Size", "mnuWindow",
              [this] { mnuWindowSavePosition_Click(); })});
}

void frmFUT::layOut() {
    auto* panel = new QGridLayout(picOpt);
    panel->setContentsMargins(0, 0, 0, 0);
    panel->setSpacing(2);
    for (int i = 0; i < static_cast<int>(cmdOpt.size()); ++i)
        panel->addWidget(cmdOpt[static_cast<std::size_t>(i)], i, 0, 1, static_cast<int>(cmdCase.size()));
    for (int i = 0; i < static_cast<int>(cmdCase.size()); ++i) {
        cmdCase[static_cast<std::size_t>(i)]->setMinimumWidth(1);
        panel->addWidget(cmdCase[static_cast<std::size_t>(i)], static_cast<int>(cmdOpt.size()), i);
    }
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(findChild<QMenuBar*>());
    all->setContentsMargins(ListMargin, ListMargin, ListMargin, ListMargin);
    all->setSpacing(PanelGap);
    all->addWidget(lstFUT, 1);
    all->addWidget(lstMoreFUT, 1);
    all->addWidget(picOpt, 0, Qt::AlignHCenter);
    all->setSizeConstraint(QLayout::SetNoConstraint);
    lstMoreFUT->hide();
}

// -- Showing --------------------------------------------------------------------------------------------------------

void frmFUT::showTerms() {
    const QString name = FromText(TermsListName(Terms.file));
    setWindowTitle(name.isEmpty() ? QStringLiteral("Frequent Terms") : name);
    cmdOpt[2]->setText(FromText(AutoCompleteCaption()));
    const bool wasChoosing = lstMoreFUT->isVisibleTo(this);
    lstFUT->setVisible(!Terms.choosing);
    lstMoreFUT->setVisible(Terms.choosing);
    for (const char* menu : {"mnuFile", "mnuFileDelete"}) menus_.enable(QString::fromLatin1(menu), !Terms.choosing);
    if (!Terms.choosing) {
        ShowEntries(lstFUT, Terms.listed);
        lstFUT->clearSelection();  // another term may have come to stand in the row
        return;
    }
    ShowEntries(lstMoreFUT, Terms.files);
    SelectOnly(lstMoreFUT, Terms.fileIndex);
    if (wasChoosing) return;
    activateWindow();
    lstMoreFUT->setFocus();
}

void frmFUT::place() {
    const TermsPlace place = Preferences.termsPlace;
    QRect wanted(Pixels(place.left), Pixels(place.top), Pixels(place.width), Pixels(place.height));
    wanted.setSize(wanted.size().expandedTo({SmallestWidth, smallestHeight()}));
    if (screen()->geometry().width() >= 1024) {
        PlaceOnScreens(this, wanted);
    } else {
        resize(wanted.size());
        CenterOnScreen(this);
    }
}

void frmFUT::rememberPlace() {
    if (isMinimized() || !isVisible()) return;
    const QRect now(pos(), size());
    Preferences.termsPlace = {static_cast<float>(Twips(now.left())), static_cast<float>(Twips(now.top())),
                              static_cast<float>(Twips(now.width())), static_cast<float>(Twips(now.height()))};
}

int frmFUT::smallestHeight() const {
    return std::max(SmallestHeight, layout()->minimumSize().height() - lstFUT->minimumSizeHint().height());
}

void frmFUT::tellTooSmall() {
    if (telling_) return;
    telling_ = true;
    ShowMessage("Can't resize this window that small. Minimize the window if you need more space.");
    resize(std::max(width(), minimumSizeHint().width()), std::max(height(), layout()->minimumSize().height()));
    telling_ = false;
}

std::vector<std::string> frmFUT::selectedTerms() const {
    std::vector<std::string> terms;
    if (Terms.choosing) return terms;  // what is selected cannot be seen
    for (int row = 0; row < lstFUT->count(); ++row)
        if (lstFUT->item(row)->isSelected()) terms.push_back(EntryAt(lstFUT, row));
    return terms;
}

// -- Events ---------------------------------------------------------------------------------------------------------

void frmFUT::lstFUT_InsertTerm() {
    auto* notes = OpenedWindow<frmNotes>();
    const auto terms = selectedTerms();
    if (notes == nullptr || terms.size() != 1) return;
    notes->txtNotes->append(InsertedTerm(notes->txtNotes->lastCharacter(), terms.front()));
    notes->focusText();
}

void frmFUT::lstMoreFUT_Choose() {
    ChooseTermsFile(lstMoreFUT->currentRow());
    if (auto* notes = OpenedWindow<frmNotes>()) notes->focusText();
}

void frmFUT::cmdOpt_Click(int index) {
    const auto terms = selectedTerms();
    switch (index) {
        case 0:
            ShowWindow<frmAddFUT>();
            break;
        case 1:
            if (terms.empty())
                ShowMessage("Nothing selected to edit.");
            else
                ShowWindow<frmEditFUT>()->edit(terms.front());
            break;
        case 2:
            ToggleAutoComplete();
            cmdOpt[2]->setText(FromText(AutoCompleteCaption()));
            break;
        default:
            if (terms.empty())
                ShowMessage("Nothing selected to remove.");
            else
                RemoveTerms(terms);
    }
}

void frmFUT::mnuFileNewFUT_Click() {
    if (CreateNewFUTFile()) ShowWindow<frmAddFUT>();
}

void frmFUT::mnuWindowSavePosition_Click() {
    rememberPlace();
    SaveTermsPlace(Preferences.termsPlace);
}

/// The files: Enter opens the selected one, the arrows only move.
bool frmFUT::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstMoreFUT && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            lstMoreFUT_Choose();
            return true;
        }
    }
    return Window::eventFilter(watched, event);
}

void frmFUT::resizeEvent(QResizeEvent* event) {
    Window::resizeEvent(event);
    if (isMinimized() || !isVisible()) return;
    rememberPlace();
    if (height() < smallestHeight()) {
        QTimer::singleShot(0, this, [this] { tellTooSmall(); });
        return;
    }
    if (auto* notes = OpenedWindow<frmNotes>()) notes->focusText();
}

void frmFUT::moveEvent(QMoveEvent* event) {
    Window::moveEvent(event);
    rememberPlace();
}

void frmFUT::unload() {
    rememberPlace();
    TermsWindowOpen = false;
}

// -- Opening --------------------------------------------------------------------------------------------------------

void OpenTermsWindow(bool centred) {
    if (OpenedWindow<frmFUT>() != nullptr) {
        ShowWindow<frmFUT>();
        return;
    }
    auto* window = LoadedWindow<frmFUT>();
    window->place();
    if (centred) {
        const QRect screen = window->screen()->availableGeometry();
        window->move(screen.left() + (screen.width() - window->width()) / 2, window->y());
    }
    if (Preferences.minimizeTerms) window->setWindowState(Qt::WindowMinimized);
    MakeMeTopmost(window);
    if (CurrentTermsFile.empty()) ReadFrequentlyUsedTerms();  // tells that there is no list
}

void CloseTermsWindow() {
    if (auto* window = OpenedWindow<frmFUT>()) window->close();
}
