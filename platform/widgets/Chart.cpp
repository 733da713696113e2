// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Chart.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <string>

#include "core/failure.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/ChartPlot.h"
#include "platform/widgets/ChartShades.h"
#include "platform/widgets/Icons.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/Widgets.h"
#include "platform/widgets/WindowShade.h"

namespace {

const QColor focusColour(0x2a, 0x6f, 0xb8);
constexpr double copiedScale = 2;

void CheckIndex(const QObject& chart, const char* what, int index, int count) {
    if (index >= 1 && index <= count) return;
    throw Failure("chart " + FromQString(chart.objectName()) + ": " + what + " " +
                  std::to_string(index) + " was asked for, but they count from 1 to " +
                  std::to_string(count));
}

}  // namespace

Chart::Chart(int rowCount, int columnCount, QWidget* parent)
    : QWidget(parent),
      figures_(rowCount, columnCount),
      shade_(new WindowShade(*this, [this] { TakeShade(); })) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setMinimumSize(240, 150);
    BuildMenu();
    ShowFocus(false);
    Refresh();
}

Chart::~Chart() = default;

// The drawing is made when somebody is to see it: the main window starts without its chart.
ChartPlot& Chart::Plot() {
    if (plot_ == nullptr) {
        plot_ = std::make_unique<ChartPlot>(figures_, *this);
        plot_->Widget().installEventFilter(this);
        // The plotting library keeps presses to itself, so the menu is opened here.
        plot_->Widget().setContextMenuPolicy(Qt::PreventContextMenu);
        layout()->addWidget(&plot_->Widget());
        // The labels are fitted to the place that the plot has now.
        plot_->Widget().show();
        layout()->activate();
        plot_->SetDark(shade_->IsDark());
        plot_->Draw();
        copyPicture_->setIcon(ThemeIcon(QStringLiteral("image-x-generic")));
        copyTable_->setIcon(ThemeIcon(QStringLiteral("edit-copy")));
    }
    return *plot_;
}

// A window polishes what is hidden in it too.
bool Chart::event(QEvent* event) {
    const bool toBeSeen = isWindow() || isVisibleTo(window());
    if (event->type() == QEvent::Show || (event->type() == QEvent::Polish && toBeSeen)) Plot();
    return QWidget::event(event);
}

void Chart::BuildMenu() {
    copyPicture_ = Named(new QAction(tr("Copy picture"), this), QStringLiteral("CopyPicture"));
    copyTable_ = Named(new QAction(tr("Copy table"), this), QStringLiteral("CopyTable"));
    connect(copyPicture_, &QAction::triggered, this, [this] { CopyPicture(); });
    connect(copyTable_, &QAction::triggered, this, [this] { CopyTable(); });
    addActions({copyPicture_, copyTable_});
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void Chart::CheckRow(int row) const { CheckIndex(*this, "row", row, rowCount()); }

void Chart::CheckColumn(int column) const { CheckIndex(*this, "column", column, columnCount()); }

QString Chart::title() const { return figures_.title; }

int Chart::rowCount() const { return figures_.Rows(); }

int Chart::columnCount() const { return figures_.Columns(); }

QString Chart::rowLabel(int row) const {
    CheckRow(row);
    return figures_.RowLabel(row);
}

QString Chart::columnLabel(int column) const {
    CheckColumn(column);
    return figures_.ColumnLabel(column);
}

double Chart::value(int row, int column) const {
    CheckRow(row);
    CheckColumn(column);
    return figures_.Value(row, column);
}

QStringList Chart::shownLabels() { return Plot().ShownLabels(); }

QColor Chart::patternColour() const {
    const QBrush& pattern = figures_.looks.front().pattern;
    return pattern.style() == Qt::NoBrush ? fillColour() : pattern.color();
}

QColor Chart::fillColour() const { return figures_.looks.front().fill; }

void Chart::SetTitle(const QString& title) { figures_.title = title; }

void Chart::SetCaption(const QString& caption) { figures_.caption = caption; }

void Chart::SetRowCount(int rowCount) { figures_.SetRowCount(rowCount); }

void Chart::SetRowLabel(int row, const QString& label) {
    CheckRow(row);
    figures_.RowLabel(row) = label;
}

void Chart::SetRowName(int row, const QString& name) {
    CheckRow(row);
    figures_.RowName(row) = name;
}

void Chart::SetColumnLabel(int column, const QString& label) {
    CheckColumn(column);
    figures_.ColumnLabel(column) = label;
}

void Chart::SetValue(int row, int column, double value) {
    CheckRow(row);
    CheckColumn(column);
    figures_.Value(row, column) = value;
}

void Chart::SetKind(ChartKind kind) { figures_.kind = kind; }

void Chart::SetSeriesColour(int column, const QColor& colour) {
    CheckColumn(column);
    figures_.looks[static_cast<std::size_t>(column - 1)].fill = colour;
}

void Chart::SetSeriesLook(int column, const BarLook& look) {
    CheckColumn(column);
    figures_.looks[static_cast<std::size_t>(column - 1)] = look;
}

void Chart::SetRowLook(int row, const BarLook& look) {
    CheckRow(row);
    figures_.SetRowLook(row, look);
}

void Chart::SetAverage(std::optional<double> average) { figures_.average = average; }

void Chart::SetRankedRows(const std::vector<int>& rows) { figures_.ranked = rows; }

void Chart::SetRange(double lowest, double highest) { figures_.range = {lowest, highest}; }

void Chart::Refresh() {
    if (plot_ != nullptr) {
        plot_->SetDark(shade_->IsDark());
        plot_->Draw();
    }
    NameItself();
    setAccessibleDescription(figures_.Description());
}

void Chart::Paint(QPainter& painter, const QRectF& rectangle) { Plot().Paint(painter, rectangle); }

/// By its title, unless the form has found a name of its own for it.
void Chart::NameItself() {
    if (accessibleName() != givenName_) return;
    const QString words = title().trimmed();
    givenName_ = words.isEmpty() ? tr("Chart") : words;
    setAccessibleName(givenName_);
}

void Chart::CopyPicture() {
    QGuiApplication::clipboard()->setPixmap(Plot().Picture(size(), copiedScale));
}

void Chart::CopyTable() const { QGuiApplication::clipboard()->setText(figures_.Table()); }

bool Chart::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        if (press->button() != Qt::RightButton) return false;
        QMenu::exec(actions(), press->globalPosition().toPoint(), nullptr, this);
        return true;
    }
    if (event->type() != QEvent::ToolTip) return QWidget::eventFilter(watched, event);
    auto* help = static_cast<QHelpEvent*>(event);
    const int place = plot_->PlaceAt(help->pos());
    if (place >= 1 && place <= figures_.Places()) {
        QToolTip::showText(help->globalPos(), PlainTip(figures_.PlaceText(place)),
                           &plot_->Widget());
    }
    return true;
}

void Chart::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        CopyTable();
        return;
    }
    QWidget::keyPressEvent(event);
}

void Chart::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    ShowFocus(true);
}

void Chart::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    ShowFocus(false);
}

void Chart::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (plot_ != nullptr) plot_->FitToWidget();
}

void Chart::TakeShade() {
    Refresh();
    ShowFocus(hasFocus());
}

/// The margin of one pixel around the plot is the frame.
void Chart::ShowFocus(bool focused) {
    QPalette palette;
    const bool dark = shade_->IsDark();
    const QColor focus = dark ? OnDark(focusColour) : focusColour;
    palette.setColor(QPalette::Window, focused ? focus : ShadesOf(dark).frame);
    setPalette(palette);
}
