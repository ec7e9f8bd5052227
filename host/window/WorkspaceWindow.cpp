#include "WorkspaceWindow.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "EmptyView.h"
#include "FilmstripView.h"
#include "Histogram.h"
#include "HistogramView.h"
#include "KeySheet.h"
#include "PhotoLoader.h"
#include "PictureView.h"
#include "SaveBar.h"
#include "SaveOptionsDialog.h"
#include "ScreenColours.h"
#include "StrengthPanel.h"
#include "VException.h"
#include "notifyDesktop.h"
#include "profileName.h"

namespace {

constexpr int kThumbnailSide = 144; ///< As large as the strip shows it.
constexpr int kNudge = 1, kLargeNudge = 10;
constexpr QSize kUsualSize(1280, 700); ///< Fits a screen of 1366 x 768 with a desktop's panel.
/// The histogram follows a drag at this pace; the picture has the processors first.
constexpr int kHistogramMs = 80;
/// Where the window keeps its own settings.
const QString kGroup = QStringLiteral("window");

/// Underlines the tool buttons that are checked or held, since some themes hardly show it.
class ToggleStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control != CC_ToolButton || !(option->state & (State_On | State_Sunken)) || !(option->state & State_Enabled))
            return;
        QRect line = subControlRect(control, option, SC_ToolButton, widget).adjusted(3, 0, -3, -1);
        line.setTop(line.bottom() - 1);
        painter->fillRect(line, option->palette.color(QPalette::Highlight));
    }
};

/// A photograph's name, or what else a user would know a session by.
QString titleOf(const Session::Recent &recent)
{
    const QFileInfo photo(recent.firstPhoto);
    const QString name =
        recent.file.isEmpty() ? photo.dir().dirName() + QDir::separator() + photo.fileName() : QFileInfo(recent.file).fileName();
    return WorkspaceWindow::tr("%1, %n photograph(s), %2", nullptr, recent.photographs)
        .arg(name, QLocale().toString(recent.when, QLocale::ShortFormat));
}

QString patterns()
{
    QStringList all;
    for (const QString &suffix : PhotoLoader::pictureSuffixes() + PhotoLoader::rawSuffixes())
        all << "*." + suffix << "*." + suffix.toUpper();
    return all.join(' ');
}

} // namespace

WorkspaceWindow::WorkspaceWindow(HostApplication &host, VIPluginOne2One &process, int jobs)
    : application(host), one2one(process), queue(host, process, jobs),
      series(host, process.guid(), int(kThumbnailSide * devicePixelRatioF())), session(series, process.name()), actions(this),
      bar(new MessageBar(this)), stack(new QStackedWidget(this)), empty(new EmptyView(this)), picture(new PictureView(this)),
      strip(new FilmstripView(this)), histogram(new HistogramView(this)), panel(new StrengthPanel(histogram, actions, this)),
      saveBar(new SaveBar(actions, this)), histogramTimer(new QTimer(this)), stateTimer(new QTimer(this))
{
    setAcceptDrops(true);
    series.follow(queue);
    picture->setScreenColours(std::make_shared<ScreenColours>(ScreenColours::profileOfScreen()));
    picture->setRenderers(&beforeRenderer, &afterRenderer);
    build();
    connectActions();
    connectWork();
    restoreLayout();
    showPhotograph(-1);
    showState();
    showTitle();
}

WorkspaceWindow::~WorkspaceWindow()
{
    queue.quit();
}

void WorkspaceWindow::build()
{
    picture->setAccessibleName(tr("Photograph"));
    strip->setAccessibleName(tr("Series"));
    strip->setModel(&series);
    stack->addWidget(empty);
    stack->addWidget(picture);

    addToolBar(makeToolBar());
    auto *centre = new QWidget(this);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(stack, 1);
    column->addWidget(strip);
    auto *row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addLayout(column, 1);
    row->addWidget(panel);
    setCentralWidget(centre);

    hint = new QLabel(tr("Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength."), this);
    hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    hint->setIndent(hint->fontMetrics().averageCharWidth());
    zoomLabel = new QLabel(this);
    zoomLabel->setObjectName(QStringLiteral("zoom"));
    zoomLabel->setAccessibleName(tr("Zoom"));
    statusBar()->addWidget(hint, 1);
    statusBar()->setMinimumHeight(saveBar->usualHeight() + 4);
    statusBar()->addPermanentWidget(saveBar);
    statusBar()->addPermanentWidget(zoomLabel);

    actions.listenOn(picture);
    actions.listenOn(strip);
    strip->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(strip, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        QMenu menu(this);
        menu.addActions({actions[Id::Auto], actions[Id::Reset], actions[Id::SaveThis], actions[Id::Retry], actions[Id::Remove]});
        menu.exec(strip->viewport()->mapToGlobal(position));
    });
    histogramTimer->setSingleShot(true);
    histogramTimer->setInterval(kHistogramMs);
    stateTimer->setSingleShot(true);
    stateTimer->setInterval(0);
}

QToolBar *WorkspaceWindow::makeToolBar()
{
    auto *bars = new QToolBar(tr("Tools"), this);
    bars->setObjectName(QStringLiteral("tools"));
    bars->setMovable(false);
    bars->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto *style = new ToggleStyle;
    style->setParent(bars);
    bars->setContextMenuPolicy(Qt::PreventContextMenu); // its only entry would hide the bar for good
    const auto button = [&](Id id, const char *name) {
        bars->addAction(actions[id]);
        auto *made = qobject_cast<QToolButton *>(bars->widgetForAction(actions[id]));
        made->setObjectName(QLatin1String(name));
        made->setStyle(style);
        made->setFocusPolicy(Qt::TabFocus);
        made->setAccessibleName(actions[id]->iconText());
        made->setAccessibleDescription(actions[id]->toolTip());
        return made;
    };
    const auto withMenu = [&](QToolButton *made, QList<QAction *> entries) {
        auto *menu = new QMenu(made);
        menu->addActions(entries);
        made->setMenu(menu);
        made->setPopupMode(QToolButton::MenuButtonPopup);
    };
    const auto held = [&](QToolButton *made, PictureView::Peek peek) {
        connect(made, &QToolButton::pressed, picture, [this, peek] { picture->setPeek(peek); });
        connect(made, &QToolButton::released, picture, [this] { picture->setPeek(PictureView::NoPeek); });
        connect(picture, &PictureView::peekChanged, made, [made, peek](PictureView::Peek now) { made->setDown(now == peek); });
    };

    withMenu(button(Id::Add, "add"), {actions[Id::Add], actions[Id::AddFolder]});
    auto *sessions = new QToolButton(bars);
    sessions->setObjectName(QStringLiteral("sessions"));
    sessions->setText(tr("Session"));
    sessions->setAccessibleName(sessions->text());
    sessions->setToolTip(tr("Open, save or begin a session: photographs with their strengths"));
    sessions->setFocusPolicy(Qt::TabFocus);
    sessions->setPopupMode(QToolButton::InstantPopup);
    auto *sessionMenu = new QMenu(sessions);
    sessionMenu->addActions({actions[Id::NewSession], actions[Id::OpenSession]});
    QMenu *recent = sessionMenu->addMenu(tr("&Recent sessions"));
    recent->setObjectName(QStringLiteral("recent"));
    sessionMenu->addSeparator();
    sessionMenu->addActions({actions[Id::SaveSession], actions[Id::SaveSessionAs]});
    sessions->setMenu(sessionMenu);
    bars->addWidget(sessions);
    connect(sessionMenu, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
    bars->addSeparator();
    auto *modes = new QActionGroup(this);
    for (const Id id : {Id::Split, Id::SideBySide, Id::Result})
        modes->addAction(actions[id]);
    button(Id::Split, "split");
    button(Id::SideBySide, "sideBySide");
    button(Id::Result, "result");
    held(button(Id::Before, "before"), PictureView::PeekBefore);
    held(button(Id::HazeMap, "hazeMap"), PictureView::PeekMap);
    bars->addSeparator();
    button(Id::Fit, "fit");
    withMenu(button(Id::Full, "full"),
             {actions[Id::Full], actions[Id::Double], actions[Id::Fourfold], actions[Id::ZoomIn], actions[Id::ZoomOut]});
    button(Id::Clipping, "clipping");
    auto *spring = new QWidget(bars);
    spring->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bars->addWidget(spring);
    button(Id::Keys, "keys");
    button(Id::FullScreen, "fullScreen");
    return bars;
}

void WorkspaceWindow::connectActions()
{
    const auto on = [&](Id id, auto &&does) { connect(actions[id], &QAction::triggered, this, does); };
    on(Id::Add, [this] { choosePhotographs(); });
    on(Id::AddFolder, [this] { chooseFolder(); });
    on(Id::NewSession, [this] {
        bar->hide();
        attempt([&] { session.startOver(); });
    });
    on(Id::OpenSession, [this] { chooseSession(); });
    on(Id::SaveSession, [this] { saveSession(/*underAnotherName=*/false); });
    on(Id::SaveSessionAs, [this] { saveSession(/*underAnotherName=*/true); });
    on(Id::Previous, [this] { selectRow(currentRow() - 1); });
    on(Id::Next, [this] { selectRow(currentRow() + 1); });
    on(Id::First, [this] { selectRow(0); });
    on(Id::Last, [this] { selectRow(series.rowCount() - 1); });
    on(Id::SelectAll, [this] { strip->selectAll(); });
    on(Id::Remove, [this] { series.remove(selectedRows()); });

    const auto nudge = [this](int by) { return [this, by] { series.nudge({currentRow()}, by); }; };
    on(Id::Stronger, nudge(kNudge));
    on(Id::Weaker, nudge(-kNudge));
    on(Id::MuchStronger, nudge(kLargeNudge));
    on(Id::MuchWeaker, nudge(-kLargeNudge));
    on(Id::Auto, [this] { series.setAutomatic(selectedRows()); });
    on(Id::Reset, [this] { series.reset(selectedRows()); });
    on(Id::Undo, [this] { series.undoStack().undo(); });
    on(Id::Redo, [this] { series.undoStack().redo(); });
    on(Id::ApplyToSelected, [this] { series.setStrength(selectedRows(), {panel->strength(), /*automatic=*/false}); });
    on(Id::ApplyToAll, [this] { series.setStrength(allRows(), {panel->strength(), /*automatic=*/false}); });
    on(Id::UseAsDefault, [this] { useAsDefault(); });

    on(Id::Split, [this] { picture->setMode(PictureView::Split); });
    on(Id::SideBySide, [this] { picture->setMode(PictureView::SideBySide); });
    on(Id::Result, [this] { picture->setMode(PictureView::AfterOnly); });
    on(Id::Clipping, [this](bool shown) { picture->setClipping(shown); });
    on(Id::Fit, [this] { picture->zoomToFit(); });
    on(Id::Full, [this] { picture->toggleFullSize(); });
    on(Id::Double, [this] { picture->zoomTo(2); });
    on(Id::Fourfold, [this] { picture->zoomTo(4); });
    on(Id::ZoomIn, [this] { picture->zoomIn(); });
    on(Id::ZoomOut, [this] { picture->zoomOut(); });

    on(Id::SaveThis, [this] { series.save({currentRow()}); });
    on(Id::SaveAll, [this] { series.saveAll(); });
    on(Id::Options, [this] { chooseOptions(); });
    on(Id::Pause, [this] {
        queue.isPaused() ? queue.resume() : queue.pause();
        showSaving();
    });
    on(Id::Stop, [this] { queue.stop(); });
    on(Id::Retry, [this] { retryFailed(); });
    on(Id::FullScreen, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    on(Id::Keys, [this] { showKeys(); });
    on(Id::Quit, [this] { close(); });

    connect(empty, &EmptyView::addWanted, this, &WorkspaceWindow::choosePhotographs);
    connect(empty, &EmptyView::addFolderWanted, this, &WorkspaceWindow::chooseFolder);
    connect(empty, &EmptyView::sessionWanted, this, &WorkspaceWindow::reopenSession);
    connect(panel, &StrengthPanel::begins, this, [this] {
        dragging = true;
        series.beginDrag();
    });
    connect(panel, &StrengthPanel::ends, this, [this] {
        dragging = false;
        series.endDrag();
    });
    connect(panel, &StrengthPanel::strengthChosen, this, [this](int percent) {
        const int row = currentRow();
        if (row < 0)
            return;
        if (const auto before = series.percent(row); before && !dragging)
            series.nudge({row}, percent - *before);
        else
            series.setStrength({row}, {percent, /*automatic=*/false});
    });
    connect(panel, &StrengthPanel::done, this, [this] { picture->setFocus(); });
    connect(picture, &PictureView::zoomChanged, this, &WorkspaceWindow::showZoom);
}

void WorkspaceWindow::connectWork()
{
    connect(strip->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &now) { showPhotograph(now.row()); });
    connect(strip->selectionModel(), &QItemSelectionModel::selectionChanged, stateTimer, qOverload<>(&QTimer::start));
    connect(strip, &FilmstripView::rowsShown, &series, &Series::readFirst);
    connect(&series, &Series::rowsInserted, this, [this](const QModelIndex &, int first) {
        const bool isFirstBatch = std::exchange(showsNext, false);
        if (isFirstBatch || currentRow() < 0)
            selectRow(first);
        stateTimer->start();
    });
    connect(&series, &Series::added, this, &WorkspaceWindow::onAdded);
    connect(&series, &Series::rowsRemoved, this, [this] {
        if (series.rowCount() == 0)
            showPhotograph(-1);
        stateTimer->start();
    });
    connect(&series, &Series::dataChanged, this, [this](const QModelIndex &first, const QModelIndex &last) {
        if (const int row = currentRow(); row >= first.row() && row <= last.row()) {
            showStrength();
            showFacts();
            if (!store.photo(series.path(row)))
                showThumbnail(row);
        }
        stateTimer->start();
    });
    // What is undone for one photograph is seen, wherever that is. With many, the view stays where it is.
    connect(&series, &Series::stepped, this, [this](const QList<int> &rows) {
        if (rows.size() == 1 && rows.first() != currentRow())
            selectRow(rows.first());
    });
    connect(&series.undoStack(), &QUndoStack::indexChanged, stateTimer, qOverload<>(&QTimer::start));
    connect(stateTimer, &QTimer::timeout, this, &WorkspaceWindow::showState);
    connect(histogramTimer, &QTimer::timeout, this, &WorkspaceWindow::showHistogram);
    connect(&session, &Session::changed, this, &WorkspaceWindow::showTitle);
    connect(&session, &Session::keepingFailed, this, [this](const QString &problem) {
        if (!problem.isEmpty())
            bar->say(MessageBar::Kind::Problem, problem);
    });

    connect(&store, &PhotoStore::pixelsReady, this, &WorkspaceWindow::showPixels);
    connect(&store, &PhotoStore::mapReady, this, [this](const QString &path) {
        const auto photo = store.photo(path);
        if (const auto percent = photo ? photo->automaticStrength() : std::nullopt)
            series.knowAutomatic(path, *percent);
        showPixels(path);
        if (path == picture->path() && photo && !photo->whyUnchanged().isEmpty())
            bar->say(MessageBar::Kind::Problem, tr("%1: %2").arg(QFileInfo(path).fileName(), photo->whyUnchanged()));
    });
    connect(picture, &PictureView::wanted, &queue, &SaveQueue::giveWay);
    connect(picture, &PictureView::pictureFailed, this, &WorkspaceWindow::complain);
    connect(picture, &PictureView::retryWanted, this, [this] {
        const int row = currentRow();
        if (!series.isReadable(row))
            series.retry(row);
        picture->showPhoto(nullptr);
        showPhotograph(row);
    });
    connect(&store, &PhotoStore::failed, this, [this](const QString &path, const QString &reason) {
        if (path != picture->path())
            return;
        picture->showFailure(path, reason);
        histogram->clear();
    });

    connect(&queue, &SaveQueue::progressChanged, this, &WorkspaceWindow::showSaving);
    connect(&queue, &SaveQueue::ended, this, &WorkspaceWindow::onSaved);
}

int WorkspaceWindow::currentRow() const
{
    return strip->currentIndex().row();
}

QList<int> WorkspaceWindow::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : strip->selectionModel()->selectedIndexes())
        rows << index.row();
    if (rows.isEmpty() && currentRow() >= 0)
        rows << currentRow();
    std::sort(rows.begin(), rows.end());
    return rows;
}

QList<int> WorkspaceWindow::allRows() const
{
    QList<int> rows;
    for (int row = 0; row < series.rowCount(); ++row)
        rows << row;
    return rows;
}

void WorkspaceWindow::selectRow(int row)
{
    if (row >= 0 && row < series.rowCount())
        strip->selectionModel()->setCurrentIndex(series.index(row), QItemSelectionModel::ClearAndSelect);
}

void WorkspaceWindow::showPhotograph(int row)
{
    const bool any = row >= 0 && row < series.rowCount();
    const bool begins = any && stack->currentWidget() == empty;
    stack->setCurrentWidget(any ? static_cast<QWidget *>(picture) : empty);
    if (begins)
        picture->setFocus();
    strip->setVisible(any);
    panel->setVisible(any);
    if (!any) {
        picture->showPhoto(nullptr);
        histogram->clear();
        showRecent();
        return;
    }
    const QString path = series.path(row);
    session.setCurrentPhoto(path);
    showStrength();
    showFacts();
    if (store.photo(path))
        showPixels(path);
    else
        showThumbnail(row);
    QStringList neighbours;
    for (const int beside : {row + 1, row - 1})
        if (beside >= 0 && beside < series.rowCount())
            neighbours << series.path(beside);
    queue.giveWay();
    store.show(path, neighbours);
    strip->showWithNeighbours(row);
    stateTimer->start();
}

void WorkspaceWindow::showThumbnail(int row)
{
    picture->showThumbnail(series.path(row), series.data(series.index(row), Series::ThumbnailRole).value<QImage>(),
                           series.facts(row).size);
}

void WorkspaceWindow::showPixels(const QString &path)
{
    if (currentRow() < 0 || path != series.path(currentRow()))
        return;
    picture->showPhoto(store.photo(path));
    showZoom();
    showFacts();
    histogramTimer->start();
}

void WorkspaceWindow::showZoom()
{
    const double scale = picture->scale();
    actions[Id::Fit]->setChecked(picture->fits());
    actions[Id::Full]->setChecked(qFuzzyCompare(scale, 1.0));
    zoomLabel->setText(tr("%1 %").arg(qRound(scale * 100)));
}

void WorkspaceWindow::showStrength()
{
    const int row = currentRow();
    const int percent = series.percent(row).value_or(WantedStrength::kUsual);
    panel->showStrength(percent, series.strength(row).automatic);
    if (picture->strength() == percent)
        return;
    picture->setStrength(percent);
    if (!histogramTimer->isActive())
        histogramTimer->start();
}

void WorkspaceWindow::showFacts()
{
    const int row = currentRow();
    const Series::Facts facts = series.facts(row);
    const auto photo = store.photo(series.path(row));
    QStringList lines;
    if (!facts.size.isEmpty()) {
        const int bits = photo ? photo->bitsPerComponent() : facts.bits;
        if (bits > 0)
            //: Width and height of a photograph in pixels, and bits per sample.
            lines << tr("%1 x %2 px, %3 bits").arg(facts.size.width()).arg(facts.size.height()).arg(bits);
        lines << tr("%1, %2").arg(facts.kind, QLocale().formattedDataSize(facts.bytes));
    }
    if (photo)
        lines << profileName(photo->profile());
    if (!facts.resultName.isEmpty() && series.isReadable(row))
        lines << tr("Result: %1").arg(facts.resultName);
    const QModelIndex index = series.index(row);
    panel->showFacts(index.data(Series::NameRole).toString(), lines,
                     series.isReadable(row) ? index.data(Series::ReasonRole).toString() : QString());
}

void WorkspaceWindow::showHistogram()
{
    if (const int row = currentRow(); row >= 0)
        if (const auto photo = store.photo(series.path(row)))
            histogram->setHistogram(histogramOf(*photo, picture->strength()));
}

void WorkspaceWindow::showState()
{
    const int row = currentRow(), count = series.rowCount(), selected = selectedRows().size();
    const QList<int> rows = allRows();
    const int readable = int(std::count_if(rows.begin(), rows.end(), [this](int each) { return series.isReadable(each); }));
    const bool any = row >= 0, isReadable = any && series.isReadable(row);
    for (const Id id : {Id::SaveSession, Id::SaveSessionAs, Id::NewSession, Id::SelectAll, Id::Remove, Id::Auto, Id::Reset,
                        Id::Split, Id::SideBySide, Id::Result, Id::Options})
        actions[id]->setEnabled(any);
    for (const Id id : {Id::Stronger, Id::Weaker, Id::MuchStronger, Id::MuchWeaker, Id::UseAsDefault, Id::Before, Id::HazeMap,
                        Id::Clipping, Id::Fit, Id::Full, Id::Double, Id::Fourfold, Id::ZoomIn, Id::ZoomOut, Id::SaveThis})
        actions[id]->setEnabled(isReadable);
    panel->setStrengthEnabled(isReadable);
    actions[Id::SaveAll]->setEnabled(readable > 0);
    for (const Id id : {Id::Previous, Id::First})
        actions[id]->setEnabled(row > 0);
    for (const Id id : {Id::Next, Id::Last})
        actions[id]->setEnabled(any && row + 1 < count);
    actions[Id::Undo]->setEnabled(series.undoStack().canUndo());
    actions[Id::Redo]->setEnabled(series.undoStack().canRedo());
    actions[Id::ApplyToSelected]->setEnabled(isReadable && selected > 1);
    actions[Id::ApplyToAll]->setEnabled(isReadable && count > 1);
    actions[Id::ApplyToSelected]->setText(tr("Appl&y to selected (%1)").arg(selected));
    actions[Id::ApplyToAll]->setText(tr("App&ly to all (%1)").arg(count));
    actions[Id::SaveAll]->setText(tr("Save all %1").arg(readable));
    hint->setVisible(any);
    zoomLabel->setVisible(isReadable);
    showSaving();
}

void WorkspaceWindow::showSaving()
{
    const bool active = queue.isActive();
    const auto failed = [this](int row) { return series.state(row) == Series::State::Failed; };
    const QList<int> rows = allRows();
    actions[Id::Pause]->setText(queue.isPaused() ? tr("&Resume") : tr("&Pause"));
    actions[Id::Pause]->setVisible(active);
    actions[Id::Stop]->setVisible(active);
    actions[Id::Retry]->setVisible(!active && std::any_of(rows.begin(), rows.end(), failed));
    if (active)
        saveBar->showProgress(queue.progress(), queue.isPaused());
}

void WorkspaceWindow::showTitle()
{
    //: Title of the window: the session, and the name of the program.
    setWindowTitle(session.file().isEmpty() ? tr("veilaway") : tr("%1[*] - veilaway").arg(QFileInfo(session.file()).fileName()));
    setWindowModified(session.isModified());
}

void WorkspaceWindow::addPhotographs(const QStringList &paths)
{
    showsNext = true;
    series.add(paths);
}

void WorkspaceWindow::onAdded(const Series::Added &added)
{
    showsNext = false;
    QStringList notes;
    if (added.results > 0)
        notes << tr("%n result(s) left out.", nullptr, added.results);
    for (const QString &folder : added.emptyFolders)
        notes << tr("There are no photographs in the folder \"%1\".").arg(folder);
    if (!notes.isEmpty())
        bar->say(MessageBar::Kind::Notice, notes.join(' '));
}

void WorkspaceWindow::openSession(const QString &settingsFile)
{
    session.open(settingsFile);
    selectRow(qMax(0, series.rowOf(session.currentPhoto())));
}

void WorkspaceWindow::restoreSession()
{
    bool restored = false;
    attempt([&] { restored = session.restore(); });
    if (restored)
        greetBack();
}

void WorkspaceWindow::greetBack()
{
    selectRow(qMax(0, series.rowOf(session.currentPhoto())));
    int unfinished = 0;
    for (const int row : allRows())
        unfinished += series.state(row) == Series::State::Waiting;
    if (unfinished > 0)
        bar->say(MessageBar::Kind::Problem, tr("%n photograph(s) of this series were still to be saved.", nullptr, unfinished),
                 tr("&Save them now"), [this] { series.saveUnfinished(); });
    else
        bar->say(MessageBar::Kind::Notice, tr("The series is as you left it."));
}

void WorkspaceWindow::reopenSession(const QString &id)
{
    attempt([&] {
        session.reopen(id);
        greetBack();
    });
}

void WorkspaceWindow::fillRecentMenu(QMenu *menu)
{
    menu->clear();
    for (const Session::Recent &recent : session.recent()) {
        QAction *const entry = menu->addAction(titleOf(recent).replace('&', QStringLiteral("&&")));
        connect(entry, &QAction::triggered, this, [this, id = recent.id] { reopenSession(id); });
    }
    menu->setEnabled(!menu->isEmpty());
}

void WorkspaceWindow::showRecent()
{
    QList<EmptyView::Recent> all;
    for (const Session::Recent &recent : session.recent())
        all << EmptyView::Recent{recent.id, titleOf(recent), recent.file.isEmpty() ? recent.firstPhoto : recent.file};
    empty->setRecentSessions(all);
}

QString WorkspaceWindow::usualFolder() const
{
    if (const int row = currentRow(); row >= 0)
        return QFileInfo(series.path(row)).absolutePath();
    const QString last = application.storedText(kGroup, QStringLiteral("folder"));
    return QFileInfo(last).isDir() ? last : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

void WorkspaceWindow::choosePhotographs()
{
    const QStringList chosen = QFileDialog::getOpenFileNames(this, tr("Add photographs"), usualFolder(),
                                                             tr("Photographs (%1)").arg(patterns()) + ";;" + tr("All files (*)"));
    if (chosen.isEmpty())
        return;
    application.setValue(kGroup, QStringLiteral("folder"), QFileInfo(chosen.constFirst()).absolutePath());
    addPhotographs(chosen);
}

void WorkspaceWindow::chooseFolder()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Add a folder"), usualFolder());
    if (chosen.isEmpty())
        return;
    application.setValue(kGroup, QStringLiteral("folder"), chosen);
    addPhotographs({chosen});
}

void WorkspaceWindow::chooseSession()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a session"), usualFolder(),
                                                      tr("Settings files (*.xml)") + ";;" + tr("All files (*)"));
    if (!file.isEmpty())
        attempt([&] { openSession(file); });
}

bool WorkspaceWindow::saveSession(bool underAnotherName)
{
    if (!underAnotherName && !session.file().isEmpty())
        return attempt([&] { session.save(); });
    QFileDialog dialog(this, tr("Save session"), usualFolder(), tr("Settings files (*.xml)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("xml"));
    dialog.selectFile(session.file().isEmpty() ? QStringLiteral("veilaway.xml") : QFileInfo(session.file()).fileName());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    return attempt([&] { session.saveAs(dialog.selectedFiles().value(0)); });
}

void WorkspaceWindow::useAsDefault()
{
    const WantedStrength strength = series.strength(currentRow());
    if (attempt([&] { series.useAsDefault(strength); }))
        bar->say(MessageBar::Kind::Notice, strength.automatic ? tr("New photographs start at their automatic strength.")
                                                              : tr("New photographs start at %1 %.").arg(strength.percent));
}

void WorkspaceWindow::chooseOptions()
{
    SaveOptionsDialog dialog(series.saveOptions(), series.path(currentRow()), this);
    if (dialog.exec() == QDialog::Accepted)
        series.setSaveOptions(dialog.options());
    showFacts();
}

void WorkspaceWindow::retryFailed()
{
    for (const int row : allRows())
        if (series.state(row) == Series::State::Failed)
            series.retry(row);
    showPhotograph(currentRow());
}

void WorkspaceWindow::onSaved(const SaveQueue::Summary &summary)
{
    saveBar->showSummary(summary);
    showState();
    if (summary.failed > 0) {
        QString reason;
        for (int row = 0; row < series.rowCount() && reason.isEmpty(); ++row)
            if (series.state(row) == Series::State::Failed && series.isReadable(row))
                reason = tr("%1: %2").arg(QFileInfo(series.path(row)).fileName(),
                                          series.data(series.index(row), Series::ReasonRole).toString());
        bar->say(MessageBar::Kind::Problem, tr("%n photograph(s) could not be saved.", nullptr, summary.failed) + ' ' + reason,
                 tr("Try a&gain"), [this] { retryFailed(); });
    }
    if (!isActiveWindow() && !notifyDesktop(tr("Saving has ended"), SaveBar::textOf(summary)))
        QApplication::alert(this);
}

void WorkspaceWindow::showKeys()
{
    std::vector<KeySheet::Row> rows = KeySheet::rowsOf(actions.all());
    for (const KeySheet::Row &row : PictureView::keys())
        rows.push_back(row);
    KeySheet(rows, this).exec();
}

bool WorkspaceWindow::attempt(const std::function<void()> &work)
{
    try {
        work();
        return true;
    } catch (const VException &failure) {
        complain(failure.message);
        return false;
    }
}

void WorkspaceWindow::complain(const QString &message)
{
    bar->say(MessageBar::Kind::Problem, message);
}

void WorkspaceWindow::restoreLayout()
{
    const QRect room = screen()->availableGeometry();
    const QByteArray geometry = application.value(kGroup, QStringLiteral("geometry"), QByteArray()).toByteArray();
    if (geometry.isEmpty() || !restoreGeometry(geometry))
        resize(kUsualSize.boundedTo(room.size()));
    const int mode = application.value(kGroup, QStringLiteral("mode"), int(PictureView::Split)).toInt();
    actions[mode == PictureView::SideBySide  ? Id::SideBySide
            : mode == PictureView::AfterOnly ? Id::Result
                                             : Id::Split]
        ->trigger();
}

void WorkspaceWindow::keepLayout()
{
    application.setValue(kGroup, QStringLiteral("geometry"), saveGeometry());
    application.setValue(kGroup, QStringLiteral("mode"), int(picture->mode()));
}

void WorkspaceWindow::closeEvent(QCloseEvent *event)
{
    if (const QString lost = session.whatWouldBeLost(); !lost.isEmpty()) {
        QMessageBox question(QMessageBox::Warning, windowTitle(), lost, QMessageBox::NoButton, this);
        question.addButton(tr("Close &anyway"), QMessageBox::DestructiveRole);
        QPushButton *const stay = question.addButton(tr("&Stay"), QMessageBox::RejectRole);
        question.setDefaultButton(stay);
        question.setEscapeButton(stay);
        question.exec();
        if (question.clickedButton() == stay) {
            event->ignore();
            return;
        }
    }
    hide(); // at once, though results that are being written are waited for
    queue.quit();
    session.close();
    keepLayout();
    QMainWindow::closeEvent(event);
}

void WorkspaceWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void WorkspaceWindow::dropEvent(QDropEvent *event)
{
    QStringList paths;
    for (const QUrl &url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    event->acceptProposedAction();
    if (paths.size() == 1 && paths[0].endsWith(QLatin1String(".xml"), Qt::CaseInsensitive))
        attempt([&] { openSession(paths[0]); });
    else if (!paths.isEmpty())
        addPhotographs(paths);
}

void WorkspaceWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isFullScreen())
        showNormal();
    else
        QMainWindow::keyPressEvent(event);
}

void WorkspaceWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        actions[Id::FullScreen]->setChecked(isFullScreen());
}
