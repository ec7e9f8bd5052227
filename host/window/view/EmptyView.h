#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QLabel;
class QVBoxLayout;

/// What the window shows while the series is empty: where to begin.
class EmptyView : public QWidget
{
    Q_OBJECT

public:
    /// An earlier session that can be opened again.
    struct Recent
    {
        QString id;   ///< For sessionWanted().
        QString text; ///< One line; its middle is left out if it is long.
        QString tip;  ///< May be empty.
    };

    explicit EmptyView(QWidget *parent = nullptr);

    /// The latest first.
    void setRecentSessions(const QList<Recent> &sessions);

Q_SIGNALS:
    void addWanted();
    void addFolderWanted();
    void sessionWanted(const QString &id);

private:
    QLabel *recentTitle;
    QVBoxLayout *recent;
};
