#pragma once

#include <map>

#include <QAction>
#include <QCoreApplication>
#include <QList>
#include <QString>

class QWidget;

/// What can be done in the workspace window: one table of texts and keys, from which buttons, tool tips and the sheet of keys are
/// made.
class WindowActions
{
    Q_DECLARE_TR_FUNCTIONS(WindowActions)

public:
    enum class Id {
        Add,
        AddFolder,
        NewSession,
        OpenSession,
        SaveSession,
        SaveSessionAs,
        Previous,
        Next,
        First,
        Last,
        SelectAll,
        Remove,
        Stronger,
        Weaker,
        MuchStronger,
        MuchWeaker,
        Auto,
        Reset,
        Undo,
        Redo,
        ApplyToSelected,
        ApplyToAll,
        UseAsDefault,
        Split,
        SideBySide,
        Result,
        Before,
        HazeMap,
        Clipping,
        Fit,
        Full,
        Double,
        Fourfold,
        ZoomIn,
        ZoomOut,
        SaveThis,
        SaveAll,
        Options,
        Pause,
        Stop,
        Retry,
        FullScreen,
        Keys,
        Quit
    };

    /// Where the keys of an action work: everywhere in the window, or only where the widgets given to listenOn() have the focus,
    /// so that elsewhere they keep their usual meaning.
    enum class Reach { Window, Pictures };

    /// The actions belong to `window`, in the language of the installed catalogues.
    explicit WindowActions(QWidget *window);

    QAction *operator[](Id id) const { return actions.at(id); }
    /// The keys of Reach::Pictures work in this widget too.
    void listenOn(QWidget *widget) const;

    /// In the order of the table.
    QList<QAction *> all() const;

private:
    std::map<Id, QAction *> actions;
};
