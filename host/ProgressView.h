#pragma once

#include <map>
#include <vector>

#include "BatchRunner.h"

/// Shows a batch on the command line. On a terminal, bars are redrawn, one for each photograph in progress, below those that are
/// finished; elsewhere each finished photograph is one line of text or JSON. Failures go to standard error in every style.
class ProgressView : public BatchRunner::Observer
{
    Q_DECLARE_TR_FUNCTIONS(ProgressView)

public:
    enum class Style { Bars, Lines, Json, Quiet };

    ProgressView(Style look, bool withNotes, const std::vector<BatchItem> &batch)
        : style(look), notes(withNotes), items(batch), outcomes(batch.size())
    {
    }

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    /// Prints the last lines: how many were not started before a stop, and how many are done. The second is left out for a single
    /// photograph that has its result, and in the styles Quiet and Json.
    void summarize();

    /// True if each photograph has a result, even an unchanged one or an earlier one that was to be kept.
    bool allDone() const { return doneCount + unchangedCount + skippedCount == int(items.size()); }
    /// What is in a finished item's BatchOutcome.
    std::optional<int> strength(std::size_t item) const { return outcomes[item].strength; }
    bool hasResult(std::size_t item) const { return outcomes[item].hasResult(); }

    /// Writes a line to standard error, prefixed with the program's name.
    static void complain(const QString &text);
    /// Writes to standard output and flushes it.
    static void say(const QString &text);
    /// False, after a complaint, if writing to standard output has failed.
    [[nodiscard]] static bool allSaid();

private:
    void eraseBars();
    void drawBars();

    const Style style;
    const bool notes;
    const std::vector<BatchItem> &items;
    std::vector<BatchOutcome> outcomes;
    std::map<int, BatchRunner::Stage> inProgress;
    int barsDrawn = 0;
    int doneCount = 0;
    int unchangedCount = 0;
    int skippedCount = 0;
    int finishedCount = 0;
    int notBegunCount = 0;
};
