#pragma once

#include <map>
#include <vector>

#include "BatchRunner.h"

/// Shows a batch on the command line. Bars are redrawn on a terminal, one for each photograph in hand, the finished ones above
/// them; elsewhere each finished photograph is a line, or a JSON object in a line. Failures go to standard error in every style.
class ProgressView : public BatchRunner::Observer
{
    Q_DECLARE_TR_FUNCTIONS(ProgressView)

public:
    enum class Style { Bars, Lines, Json, Quiet };

    ProgressView(Style look, bool withNotes, const std::vector<BatchItem> &batch)
        : style(look), notes(withNotes), items(batch), strengths(batch.size())
    {
    }

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    /// The last lines: how many were not begun before a stop, and how many are done. The second not for one photograph that has
    /// its result, and not in the styles Quiet and Json.
    void summarize();

    /// Whether each photograph has its result, be it unchanged.
    bool allDone() const { return doneCount + unchangedCount == int(items.size()); }
    /// What a finished item's BatchOutcome says.
    std::optional<int> strength(std::size_t item) const { return strengths[item]; }

    /// A line on standard error that begins with the program's name.
    static void complain(const QString &text);
    /// To standard output, at once.
    static void say(const QString &text);
    /// False, with a complaint, if something that was said could not be written.
    [[nodiscard]] static bool allSaid();

private:
    void eraseBars();
    void drawBars();

    const Style style;
    const bool notes;
    const std::vector<BatchItem> &items;
    std::vector<std::optional<int>> strengths;
    std::map<int, BatchRunner::Stage> inProgress;
    int barsDrawn = 0;
    int doneCount = 0;
    int unchangedCount = 0;
    int finishedCount = 0;
    int notBegunCount = 0;
};
