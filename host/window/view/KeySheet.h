#pragma once

#include <QDialog>
#include <QList>
#include <QString>

class QAction;

/// A sheet of all keys. It shows the actions' own texts and shortcuts, so that it is right whatever they are.
class KeySheet : public QDialog
{
    Q_OBJECT

public:
    struct Group
    {
        QString title;
        QList<QAction *> actions; ///< Those without a shortcut are left out.
    };

    explicit KeySheet(const QList<Group> &groups, QWidget *parent = nullptr);
};
