#pragma once

#include <optional>

#include <QStringList>
#include <QWidget>

class QLabel;
class QSlider;
class QSpinBox;
class WindowActions;

/// The right side of the workspace window: histogram, strength, facts of the file, saving.
class StrengthPanel : public QWidget
{
    Q_OBJECT

public:
    /// `histogram` is shown on top; the panel takes it over.
    StrengthPanel(QWidget *histogram, const WindowActions &actions, QWidget *parent = nullptr);

    /// The strength of the photograph in view; emits nothing. With `automatic` it is marked as chosen for the photograph.
    void showStrength(int percent, bool automatic);
    int strength() const;
    /// Whether the user can set it.
    void setStrengthEnabled(bool enabled);
    /// The name is set off from the other lines. Lines that are too long are shortened in the middle. `note`, which may be empty,
    /// is wrapped, and cut at the end if it is too long.
    void showFacts(const QString &name, const QStringList &lines, const QString &note);
    /// Puts the cursor into the box.
    void editStrength();

Q_SIGNALS:
    /// The user sets a strength: while the slider is dragged or the box typed into, many times between begins() and ends().
    void strengthChosen(int percent);
    void begins();
    void ends();
    /// The user pressed Return in the box.
    void done();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitFacts();
    void fitNote();

    QSlider *slider;
    QSpinBox *box;
    QLabel *origin; ///< That the strength is automatic.
    QLabel *nameLabel;
    QLabel *factsLabel;
    QLabel *noteLabel;
    QString fullName;
    QStringList fullLines;
    QString fullNote;
};
