#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QVBoxLayout;

/// What the window shows while the series is empty: where to begin.
class EmptyView : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyView(QWidget *parent = nullptr);

    /// Paths of session files, the latest first.
    void setRecentSessions(const QStringList &paths);

Q_SIGNALS:
    void addWanted();
    void addFolderWanted();
    void sessionWanted(const QString &path);
};
