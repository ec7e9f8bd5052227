#pragma once

#include <QDialog>

#include "SaveQueue.h"

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// How results are saved: where, under which name, at which quality, and what happens to results that exist already.
class SaveOptionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `example` is the name of a photograph of the series.
    SaveOptionsDialog(const SaveQueue::Options &options, const QString &example, QWidget *parent = nullptr);

    SaveQueue::Options options() const;

private:
    void chooseFolder();
    /// Shows what results will be called, or what is wrong with the options.
    void check();

    const QString exampleName;
    QButtonGroup *existing;
    QCheckBox *inFolder;
    QLineEdit *folder;
    QPushButton *browse;
    QLineEdit *tag;
    QCheckBox *ownQuality;
    QSpinBox *quality;
    QLabel *outlook;
    QPushButton *accepting;
};
