#include "WindowActions.h"

#include <QKeySequence>
#include <QWidget>

namespace {

using Id = WindowActions::Id;
using Reach = WindowActions::Reach;

struct Row
{
    Id id;
    const char *text;
    const char *keys; ///< Portable, separated by "; "; the first is shown. Empty for none.
    const char *tip;  ///< What it does, for the tool tip.
    Reach reach = Reach::Window;
    bool checkable = false;
};

// Actions without a key have a mnemonic.
constexpr Row kRows[] = {
    {Id::Add, QT_TRANSLATE_NOOP("WindowActions", "Add photographs..."), "Ctrl+O",
     QT_TRANSLATE_NOOP("WindowActions", "Add photographs to the series")},
    {Id::AddFolder, QT_TRANSLATE_NOOP("WindowActions", "Add a folder..."), "Ctrl+Shift+O",
     QT_TRANSLATE_NOOP("WindowActions", "Add the photographs of a folder to the series")},
    {Id::NewSession, QT_TRANSLATE_NOOP("WindowActions", "Start over"), "Ctrl+N",
     QT_TRANSLATE_NOOP("WindowActions", "Begin an empty series; this one stays among the recent sessions")},
    {Id::OpenSession, QT_TRANSLATE_NOOP("WindowActions", "&Open a session..."), "",
     QT_TRANSLATE_NOOP("WindowActions", "Open photographs and strengths that were saved as a session")},
    {Id::SaveSession, QT_TRANSLATE_NOOP("WindowActions", "Save the session"), "Ctrl+S",
     QT_TRANSLATE_NOOP("WindowActions", "Save the list of photographs and their strengths")},
    {Id::SaveSessionAs, QT_TRANSLATE_NOOP("WindowActions", "Save the session as..."), "Ctrl+Shift+S",
     QT_TRANSLATE_NOOP("WindowActions", "Save the session under another name")},
    {Id::Previous, QT_TRANSLATE_NOOP("WindowActions", "Previous photograph"), "Left; PgUp",
     QT_TRANSLATE_NOOP("WindowActions", "Previous photograph"), Reach::Pictures},
    {Id::Next, QT_TRANSLATE_NOOP("WindowActions", "Next photograph"), "Right; PgDown",
     QT_TRANSLATE_NOOP("WindowActions", "Next photograph"), Reach::Pictures},
    {Id::First, QT_TRANSLATE_NOOP("WindowActions", "First photograph"), "Home",
     QT_TRANSLATE_NOOP("WindowActions", "First photograph"), Reach::Pictures},
    {Id::Last, QT_TRANSLATE_NOOP("WindowActions", "Last photograph"), "End",
     QT_TRANSLATE_NOOP("WindowActions", "Last photograph"), Reach::Pictures},
    {Id::SelectAll, QT_TRANSLATE_NOOP("WindowActions", "Select all"), "Ctrl+A",
     QT_TRANSLATE_NOOP("WindowActions", "Select all photographs")},
    {Id::Remove, QT_TRANSLATE_NOOP("WindowActions", "Remove from the series"), "Del",
     QT_TRANSLATE_NOOP("WindowActions", "Remove the selected photographs from the series; the files stay"), Reach::Pictures},
    {Id::Stronger, QT_TRANSLATE_NOOP("WindowActions", "Stronger"), "Up",
     QT_TRANSLATE_NOOP("WindowActions", "Raise the strength by 1 per cent"), Reach::Pictures},
    {Id::Weaker, QT_TRANSLATE_NOOP("WindowActions", "Weaker"), "Down",
     QT_TRANSLATE_NOOP("WindowActions", "Lower the strength by 1 per cent"), Reach::Pictures},
    {Id::MuchStronger, QT_TRANSLATE_NOOP("WindowActions", "Stronger by 10"), "Shift+Up",
     QT_TRANSLATE_NOOP("WindowActions", "Raise the strength by 10 per cent"), Reach::Pictures},
    {Id::MuchWeaker, QT_TRANSLATE_NOOP("WindowActions", "Weaker by 10"), "Shift+Down",
     QT_TRANSLATE_NOOP("WindowActions", "Lower the strength by 10 per cent"), Reach::Pictures},
    {Id::Auto, QT_TRANSLATE_NOOP("WindowActions", "Auto"), "A",
     QT_TRANSLATE_NOOP("WindowActions", "Give each selected photograph the strength that suits it")},
    {Id::Reset, QT_TRANSLATE_NOOP("WindowActions", "Reset"), "R",
     QT_TRANSLATE_NOOP("WindowActions", "Go back to the strength at the start")},
    {Id::Undo, QT_TRANSLATE_NOOP("WindowActions", "Undo"), "Ctrl+Z", QT_TRANSLATE_NOOP("WindowActions", "Undo the last change")},
    {Id::Redo, QT_TRANSLATE_NOOP("WindowActions", "Redo"), "Ctrl+Shift+Z; Ctrl+Y",
     QT_TRANSLATE_NOOP("WindowActions", "Make the change again that was undone")},
    {Id::ApplyToSelected, QT_TRANSLATE_NOOP("WindowActions", "Appl&y to selected"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Use this strength for all selected photographs")},
    {Id::ApplyToAll, QT_TRANSLATE_NOOP("WindowActions", "App&ly to all"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Use this strength for all photographs of the series")},
    {Id::UseAsDefault, QT_TRANSLATE_NOOP("WindowActions", "Use as &default"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Start new photographs at this strength from now on")},
    {Id::Split, QT_TRANSLATE_NOOP("WindowActions", "Split"), "S",
     QT_TRANSLATE_NOOP("WindowActions", "Before and after in one picture, with a line to drag"), Reach::Window,
     /*checkable=*/true},
    {Id::SideBySide, QT_TRANSLATE_NOOP("WindowActions", "Side by side"), "D",
     QT_TRANSLATE_NOOP("WindowActions", "Before and after side by side"), Reach::Window, /*checkable=*/true},
    {Id::Result, QT_TRANSLATE_NOOP("WindowActions", "Result"), "W", QT_TRANSLATE_NOOP("WindowActions", "Only the result"),
     Reach::Window, /*checkable=*/true},
    {Id::Before, QT_TRANSLATE_NOOP("WindowActions", "Before"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Hold, or hold Space: the photograph as it was")},
    {Id::HazeMap, QT_TRANSLATE_NOOP("WindowActions", "Haze map"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Hold, or hold M: where haze was found")},
    {Id::Clipping, QT_TRANSLATE_NOOP("WindowActions", "Clipping"), "C",
     QT_TRANSLATE_NOOP("WindowActions", "Mark pixels that became black or white"), Reach::Window, /*checkable=*/true},
    {Id::Fit, QT_TRANSLATE_NOOP("WindowActions", "Fit"), "F; Ctrl+0",
     QT_TRANSLATE_NOOP("WindowActions", "Show the whole photograph"), Reach::Window, /*checkable=*/true},
    {Id::Full, QT_TRANSLATE_NOOP("WindowActions", "100 %"), "Z; Ctrl+1",
     QT_TRANSLATE_NOOP("WindowActions", "Show each pixel as it is, where the pointer is"), Reach::Window, /*checkable=*/true},
    {Id::Double, QT_TRANSLATE_NOOP("WindowActions", "200 %"), "Ctrl+2",
     QT_TRANSLATE_NOOP("WindowActions", "Show pixels at twice their size")},
    {Id::Fourfold, QT_TRANSLATE_NOOP("WindowActions", "400 %"), "Ctrl+4",
     QT_TRANSLATE_NOOP("WindowActions", "Show pixels at four times their size")},
    {Id::ZoomIn, QT_TRANSLATE_NOOP("WindowActions", "Zoom in"), "Ctrl++; Ctrl+=; +",
     QT_TRANSLATE_NOOP("WindowActions", "Zoom in")},
    {Id::ZoomOut, QT_TRANSLATE_NOOP("WindowActions", "Zoom out"), "Ctrl+-; -", QT_TRANSLATE_NOOP("WindowActions", "Zoom out")},
    {Id::SaveThis, QT_TRANSLATE_NOOP("WindowActions", "Save this one"), "Ctrl+Return; Ctrl+Enter",
     QT_TRANSLATE_NOOP("WindowActions", "Save the result of this photograph")},
    {Id::SaveAll, QT_TRANSLATE_NOOP("WindowActions", "Save all"), "Ctrl+Shift+Return; Ctrl+Shift+Enter",
     QT_TRANSLATE_NOOP("WindowActions", "Save the results of the whole series")},
    {Id::Options, QT_TRANSLATE_NOOP("WindowActions", "Save op&tions..."), "",
     QT_TRANSLATE_NOOP("WindowActions", "Folder, tag and quality of the results, and what happens to existing ones")},
    {Id::Pause, QT_TRANSLATE_NOOP("WindowActions", "&Pause"), "",
     QT_TRANSLATE_NOOP("WindowActions", "Finish the photographs in work and begin no other until you resume"), Reach::Window,
     /*checkable=*/true},
    {Id::Stop, QT_TRANSLATE_NOOP("WindowActions", "Stop"), "Ctrl+.",
     QT_TRANSLATE_NOOP("WindowActions", "Stop saving; results that are complete stay")},
    {Id::Retry, QT_TRANSLATE_NOOP("WindowActions", "Try again"), "F5",
     QT_TRANSLATE_NOOP("WindowActions", "Try again those photographs that failed")},
    {Id::FullScreen, QT_TRANSLATE_NOOP("WindowActions", "Full screen"), "F11",
     QT_TRANSLATE_NOOP("WindowActions", "Use the whole screen, or go back to the window"), Reach::Window, /*checkable=*/true},
    {Id::Keys, QT_TRANSLATE_NOOP("WindowActions", "Keys"), "F1", QT_TRANSLATE_NOOP("WindowActions", "Show all keys")},
    {Id::Quit, QT_TRANSLATE_NOOP("WindowActions", "Quit"), "Ctrl+Q", QT_TRANSLATE_NOOP("WindowActions", "Close the window")},
};

QList<QKeySequence> sequences(const Row &row)
{
    return QKeySequence::listFromString(QString::fromLatin1(row.keys), QKeySequence::PortableText);
}

} // namespace

WindowActions::WindowActions(QWidget *window)
{
    for (const Row &row : kRows) {
        auto *action = new QAction(tr(row.text), window);
        action->setCheckable(row.checkable);
        action->setShortcuts(sequences(row));
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        //: Tool tip: what the action does, and its key.
        action->setToolTip(key.isEmpty() ? tr(row.tip) : tr("%1 (%2)").arg(tr(row.tip), key));
        if (row.reach == Reach::Pictures)
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        else
            window->addAction(action);
        actions.emplace(row.id, action);
    }
}

void WindowActions::listenOn(QWidget *widget) const
{
    for (const Row &row : kRows)
        if (row.reach == Reach::Pictures)
            widget->addAction(actions.at(row.id));
}

QList<QAction *> WindowActions::all() const
{
    QList<QAction *> inOrder;
    for (const Row &row : kRows)
        inOrder << actions.at(row.id);
    return inOrder;
}
