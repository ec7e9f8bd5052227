#pragma once

#include <map>
#include <vector>

#include <QElapsedTimer>

#include "BatchRunner.h"

/// Shows a batch on the command line. On a terminal, two lines below the finished photographs are redrawn: how much of the batch
/// is done and how long the rest will take, and what is in progress. Elsewhere each finished photograph is one line of text or
/// JSON. Failures go to standard error in every style.
class ProgressView : public BatchRunner::Observer
{
    Q_DECLARE_TR_FUNCTIONS(ProgressView)

public:
    enum class Style { Terminal, Lines, Json, Quiet };

    ProgressView(Style look, bool withNotes, const std::vector<BatchItem> &batch);

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    /// Shows what would be done with an item that nothing speaks against.
    void planned(int item, const BatchRunner::Forecast &forecast);
    /// Prints one last line that counts what became of the photographs. It is left out for a single photograph that has its
    /// result, and in the styles Quiet and Json.
    void summarize();
    /// What summarize prints, in any case.
    QString summary() const;
    /// The first failure with the name of its photograph, or an empty text.
    const QString &firstFailure() const { return failure; }

    /// True if each photograph has a result, even an unchanged one or an earlier one that was to be kept, or could have one.
    bool allDone() const;
    /// What is in a finished item's BatchOutcome.
    std::optional<int> strength(std::size_t item) const { return outcomes[item].strength; }
    bool hasResult(std::size_t item) const { return outcomes[item].hasResult(); }

    /// True for standard output or error if it is a terminal that obeys control sequences.
    static bool isTerminal(int stream);
    /// Writes a line to standard error, prefixed with the program's name, which is red on a terminal unless NO_COLOR is set.
    static void complain(const QString &text);
    /// The same for what is not a failure, without a colour.
    static void note(const QString &text);
    /// Writes to standard output and flushes it.
    static void say(const QString &text);
    /// False, after a complaint, if writing to standard output has failed.
    [[nodiscard]] static bool allSaid();

private:
    void erase();
    void draw();
    QString total(int columns) const;
    QString inWork(int columns) const;
    void sayObject(int item, const BatchOutcome &outcome, const BatchRunner::Forecast *forecast) const;

    enum Count { Done, Unchanged, Skipped, Failed, NotBegun, Planned, Counts };

    const Style style;
    const bool notes;
    const std::vector<BatchItem> &items;
    std::vector<BatchOutcome> outcomes;
    std::vector<qint64> bytes; ///< Of each photograph that is to be worked on; the share of it in the whole.
    qint64 allBytes = 0;
    qint64 finishedBytes = 0;
    QElapsedTimer since;
    std::map<int, BatchRunner::Stage> inProgress;
    int linesDrawn = 0;
    int finishedCount = 0;
    int counts[Counts] = {};
    QString failure;
};
