#pragma once

#include <vector>

#include <QDialog>
#include <QList>
#include <QString>

class QAction;

/// A sheet of all keys, in columns.
class KeySheet : public QDialog
{
    Q_OBJECT

public:
    struct Row
    {
        QString keys; ///< As the desktop writes them.
        QString does;
    };
    /// From the actions' first shortcuts, and their status tips or else their texts, so that the sheet is right whatever they
    /// are. Actions without a shortcut are left out.
    static std::vector<Row> rowsOf(const QList<QAction *> &actions);

    explicit KeySheet(const std::vector<Row> &rows, QWidget *parent = nullptr);
};
