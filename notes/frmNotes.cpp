// The notes editor.
#include "notes/frmNotes.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>

#include "base/dialogs.h"
#include "calendar/modViews.h"
#include "forms/printer.h"
#include "forms/qt/text.h"
#include "marks/modSaveChanges.h"
#include "notes/frmFUT.h"
#include "notes/frmPref.h"
#include "notes/modFUT.h"
#include "notes/modNotes.h"
#include "notes/modPrintNote.h"
#include "notes/modTimeLine.h"
#include "shell/modErrors.h"
#include "shell/modPreferences.h"

namespace {
constexpr int WidestWindow = Pixels(11520);  // a wider one leaves the text as wide as it can be printed
constexpr int WidestText = Pixels(11160);
constexpr int SideMargin = Pixels(112);

/// Where the terms window opens while no place of it is kept.
void UseUsualTermsPlace() {
    Preferences.termsPlace = TermsPlace();
    if (Twips(QGuiApplication::primaryScreen()->geometry().width()) < 15360) Preferences.termsPlace.left = 8925;
}
}  // namespace

frmNotes::frmNotes() : Window("frmNotes", QStringLiteral("Notes")) {
    NotesWindowOpen = true;
    txtNotes = Named(new NoteTextBox, QStringLiteral("txtNotes"), QStringLiteral("Note"));
    cmdFormat = Named(new QPushButton(QStringLiteral("&Insert Time Line Format")), QStringLiteral("cmdFormat"),
                      QStringLiteral("Insert Time Line Format"));
    cmdFormat->setToolTip(QStringLiteral("Adds a line for each half hour from 06:00 AM to 11:30 PM"));
    buildMenus();
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(findChild<QMenuBar*>());
    all->setContentsMargins(SideMargin, SideMargin, SideMargin, SideMargin);
    all->addWidget(txtNotes, 1);
    all->addWidget(cmdFormat, 0, Qt::AlignLeft);
    resize(Pixels(9600), Pixels(7200));
    connect(txtNotes, &QPlainTextEdit::textChanged, this, [this] { txtNotes_Change(); });
    connect(cmdFormat, &QPushButton::clicked, this, [this] { cmdFormat_Click(); });
    connect(txtNotes, &NoteTextBox::termDropped, this, [this] { txtNotes_DragDrop(); });

    ReadTermsOnOpening();
    if (!Preferences.loadTermsPlace) UseUsualTermsPlace();
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    if (screen.width() >= Pixels(15360) && screen.height() >= Pixels(11520)) setWindowState(Qt::WindowMaximized);
    if (Preferences.showTerms && !TermsWindowOpen) OpenTermsWindow();
}

frmNotes::~frmNotes() { NotesWindowOpen = OpenedWindow<frmNotes>() != nullptr; }

void frmNotes::buildMenus() {
    menus_.build(new QMenuBar(this),
                 {Without("mnuFile", "&File", ""),
                  With(
                      "mnuFileSave", "&Save", "mnuFile", [this] { save(); }, QKeySequence::Save),
                  With(
                      "mnuFilePrint", "&Print", "mnuFile", [this] { mnuFilePrint_Click(); }, QKeySequence::Print),
                  Without("mnuEdit", "&Edit", ""),
                  With(
                      "mnuEditSearchAgain", "Search A&gain", "mnuEdit", [this] { mnuEditSearchAgain_Click(); },
                      Qt::CTRL | Qt::Key_G),
                  Without("mnuPref", "&Preferences", ""),
                  With("mnuPrefFut", "Adjust &FUT Preferences", "mnuPref", [] { ShowWindow<frmPref>(); })});
}

// -- The note -------------------------------------------------------------------------------------------------------

void frmNotes::showNote(const QString& caption, const std::string& text) {
    setWindowTitle(caption);
    setAccessibleName(caption);
    txtNotes->showNote(text);
    showSearchState();
    limitWidth();
    ShowWindow<frmNotes>();
    txtNotes->setFocus();
    if (SearchActive) txtNotes->selectPhrase(FromText(SearchPhrase), 0);
}

void frmNotes::showSearchState() {
    menus_.enable(QStringLiteral("mnuEdit"), SearchActive);
    menus_.enable(QStringLiteral("mnuEditSearchAgain"), SearchActive);
}

void frmNotes::focusText() {
    activateWindow();
    txtNotes->setFocus();
}

void frmNotes::limitWidth() {
    txtNotes->setMaximumWidth(PrinterAvailable && width() > WidestWindow ? WidestText : QWIDGETSIZE_MAX);
}

bool frmNotes::save() {
    const QScopedValueRollback busy(busy_, true);
    return SaveOpenNote();
}

bool frmNotes::queryUnload() {
    if (busy_) return false;
    if (!NotesChanged) return true;
    QScopedValueRollback busy(busy_, true);
    if (!AskToSave("Text has been changed. Do you want to save the changes?", "Text Has Been Changed.", SaveOpenNote))
        return false;
    NotesChanged = false;
    return true;
}

void frmNotes::unload() {
    NotesWindowOpen = false;
    if (TermsWindowOpen) CloseTermsWindow();
}

// -- Events ---------------------------------------------------------------------------------------------------------

void frmNotes::txtNotes_Change() {
    if (NoteLoading) return;
    // Comparing a long text at every key would be felt; one of another length differs without looking.
    NotesChanged = txtNotes->length() != Notes.originalLength || txtNotes->noteText() != FromText(NoteOriginalText);
}

void frmNotes::txtNotes_DragDrop() {
    txtNotes->append(DroppedTerm(txtNotes->lastCharacter(), DraggedTerm));
    DraggedTerm.clear();
    focusText();
}

void frmNotes::cmdFormat_Click() {
    const int from = txtNotes->length();
    const bool newLine = from > 0 && txtNotes->lastCharacter() != '\n';
    txtNotes->append((newLine ? "\n" : "") + TimeLine());
    constexpr int FirstTime = 11;  // "06:00 AM - "
    txtNotes->setCaret(from + newLine + FirstTime);
    txtNotes->setFocus();
}

void frmNotes::mnuFilePrint_Click() {
    if (!PrinterAvailable) {
        ShowMessage("Could not find Printer.");
        return;
    }
    Reporting("mnuFilePrint_Click", [this] {
        std::vector<std::string> lines;
        for (const QString& line : txtNotes->wrappedLines()) lines.push_back(ToText(line));
        PrintNote(*Printer().begin(ToText(windowTitle())), Notes.openDate, lines);
    });
}

void frmNotes::mnuEditSearchAgain_Click() {
    if (txtNotes->selectPhrase(FromText(SearchPhrase), txtNotes->textCursor().selectionEnd())) return;
    ShowMessage("No more occurences.");
    txtNotes->setCaret(0);
}

void frmNotes::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            if (close()) Show1YearCalendar();
            break;
        case Qt::Key_F2:
            if (TermsWindowOpen) ShowTermsFiles();
            break;
        case Qt::Key_F3:
            if (!TermsWindowOpen) break;
            NextTermsFile();
            focusText();
            break;
        default:
            Window::keyPressEvent(event);
    }
}

void frmNotes::resizeEvent(QResizeEvent* event) {
    Window::resizeEvent(event);
    limitWidth();
}

void frmNotes::changeEvent(QEvent* event) {
    Window::changeEvent(event);
    const bool maximised = event->type() == QEvent::WindowStateChange && isMaximized() && isVisible();
    if (maximised && Preferences.showTerms && !TermsWindowOpen) OpenTermsWindow();
}

// -- For the store --------------------------------------------------------------------------------------------------

void InstallNoteEditor() {
    NoteEditor.open = [](const std::string& caption, const std::string& text) {
        LoadedWindow<frmNotes>()->showNote(FromText(caption), text);
    };
    NoteEditor.close = [] {
        auto* window = OpenedWindow<frmNotes>();
        return window == nullptr || window->close();
    };
    NoteEditor.textToSave = [] {
        const auto* window = OpenedWindow<frmNotes>();
        return window == nullptr ? std::nullopt : TextToSave(window->txtNotes->noteText());
    };
    AskAboutNotes = AskAboutOpenNote;
}
