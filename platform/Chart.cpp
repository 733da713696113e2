// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/RoundedBars.h"
// The plotting library comes first, as its header is written with Qt's keywords.

#include <QClipboard>
#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "core/failure.h"
#include "platform/Chart.h"

namespace {

const QColor textColour(0x1f, 0x23, 0x28);
const QColor axisColour(0x8a, 0x90, 0x99);
const QColor gridColour(0xe6, 0xe8, 0xec);
const QColor focusColour(0x2a, 0x6f, 0xb8);
constexpr double roomForBars = 0.62;  // of the distance between two places on the axis

QColor SeriesColour(int column) {
    constexpr std::array<QRgb, 6> colours = {0xff4c78a8, 0xff59a14f, 0xffd9982f,
                                             0xffa06ba0, 0xff3f9c9c, 0xffc8605a};
    return QColor::fromRgb(colours[static_cast<std::size_t>(column - 1) % colours.size()]);
}

QString Shown(double value) { return QString::number(value, 'g', 4); }

}  // namespace

struct Chart::Figures {
    int rows;
    int columns;
    QString title;
    QString givenName;  // the accessible name that the chart gave itself
    std::vector<QString> rowLabels;
    std::vector<QString> columnLabels;
    std::vector<double> values;
    std::optional<QCPRange> range;
    QCustomPlot* plot = nullptr;
    QCPTextElement* heading = nullptr;

    /// Places on the horizontal axis.
    int Places() const { return rows == 1 ? columns : rows; }
    QString PlaceLabel(int place) const {
        return rows == 1 ? columnLabels[Entry(place)] : rowLabels[Entry(place)];
    }
    double Value(int row, int column) const { return values[Place(row, column)]; }
    std::size_t Place(int row, int column) const {
        return Entry(row) * static_cast<std::size_t>(columns) + Entry(column);
    }
    static std::size_t Entry(int index) { return static_cast<std::size_t>(index - 1); }

    void SetUpPlot();
    void DrawAxes();
    void DrawHeading();
    void DrawSeries(int column);
    QCPRange Range() const;
};

void Chart::Figures::SetUpPlot() {
    plot->setBackground(QBrush(Qt::white));
    plot->setFocusPolicy(Qt::NoFocus);
    for (QCPAxis* axis : {plot->xAxis, plot->yAxis}) {
        axis->setLabelColor(textColour);
        axis->setTickLabelColor(textColour);
        axis->setBasePen(QPen(axisColour));
        axis->setTickPen(Qt::NoPen);
        axis->setSubTickPen(Qt::NoPen);
        axis->setTickLabelPadding(6);
    }
    plot->xAxis->grid()->setVisible(false);
    plot->xAxis->setBasePen(Qt::NoPen);
    plot->yAxis->setBasePen(Qt::NoPen);
    plot->yAxis->grid()->setPen(QPen(gridColour));
    plot->yAxis->grid()->setZeroLinePen(QPen(axisColour, 1.2));
    plot->yAxis->ticker()->setTickCount(4);
    plot->setLocale(QLocale::c());
}

QCPRange Chart::Figures::Range() const {
    if (range) return *range;
    QCPRange all(0, 0);
    for (const double value : values) all.expand(value);
    if (all.size() <= 0) all.upper = 1;
    const double air = all.size() * 0.06;
    return {all.lower < 0 ? all.lower - air : 0, all.upper > 0 ? all.upper + air : 0};
}

void Chart::Figures::DrawAxes() {
    const QSharedPointer<QCPAxisTickerText> labels(new QCPAxisTickerText);
    for (int place = 1; place <= Places(); ++place) labels->addTick(place, PlaceLabel(place));
    plot->xAxis->setTicker(labels);
    plot->xAxis->setRange(0.4, Places() + 0.6);
    plot->yAxis->setRange(Range());
    for (QCPAxis* axis : {plot->xAxis, plot->yAxis}) axis->setTickLabelFont(plot->font());
}

void Chart::Figures::DrawHeading() {
    if (title.isEmpty() == (heading == nullptr)) {
        if (heading != nullptr) heading->setText(title);
        return;
    }
    if (heading != nullptr) {
        plot->plotLayout()->remove(heading);
        plot->plotLayout()->simplify();
        heading = nullptr;
        return;
    }
    QFont font = plot->font();
    font.setBold(true);
    heading = new QCPTextElement(plot, title, font);
    heading->setTextColor(textColour);
    plot->plotLayout()->insertRow(0);
    plot->plotLayout()->addElement(0, 0, heading);
}

void Chart::Figures::DrawSeries(int column) {
    auto* bars = new RoundedBars(plot->xAxis, plot->yAxis);
    const int besides = rows == 1 ? 1 : columns;
    const double width = roomForBars / besides;
    bars->setWidth(besides == 1 ? width : width * 0.9);
    bars->setPen(Qt::NoPen);
    bars->setBrush(SeriesColour(column));
    bars->setAntialiasedFill(true);
    for (int row = 1; row <= rows; ++row) {
        const double offset = rows == 1 ? 0 : (column - (columns + 1) / 2.0) * width;
        bars->addData((rows == 1 ? column : row) + offset, Value(row, column));
    }
}

Chart::Chart(int rowCount, int columnCount, QWidget* parent)
    : QWidget(parent), figures_(std::make_unique<Figures>()) {
    figures_->rows = rowCount;
    figures_->columns = columnCount;
    figures_->rowLabels.resize(static_cast<std::size_t>(rowCount));
    figures_->columnLabels.resize(static_cast<std::size_t>(columnCount));
    figures_->values.resize(static_cast<std::size_t>(rowCount) *
                            static_cast<std::size_t>(columnCount));
    figures_->plot = new QCustomPlot(this);
    figures_->SetUpPlot();
    figures_->plot->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(figures_->plot);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setMinimumSize(240, 150);
    ShowFocus(false);
    Refresh();
}

Chart::~Chart() = default;

namespace {

void CheckIndex(const QObject& chart, const char* what, int index, int count) {
    if (index >= 1 && index <= count) return;
    throw Failure("chart " + chart.objectName().toStdString() + ": " + what + " " +
                  std::to_string(index) + " was asked for, but they count from 1 to " +
                  std::to_string(count));
}

}  // namespace

QString Chart::title() const { return figures_->title; }

int Chart::rowCount() const { return figures_->rows; }

int Chart::columnCount() const { return figures_->columns; }

QString Chart::rowLabel(int row) const {
    CheckIndex(*this, "row", row, rowCount());
    return figures_->rowLabels[Figures::Entry(row)];
}

QString Chart::columnLabel(int column) const {
    CheckIndex(*this, "column", column, columnCount());
    return figures_->columnLabels[Figures::Entry(column)];
}

double Chart::value(int row, int column) const {
    CheckIndex(*this, "row", row, rowCount());
    CheckIndex(*this, "column", column, columnCount());
    return figures_->Value(row, column);
}

void Chart::SetTitle(const QString& title) { figures_->title = title; }

void Chart::SetRowLabel(int row, const QString& label) {
    CheckIndex(*this, "row", row, rowCount());
    figures_->rowLabels[Figures::Entry(row)] = label;
}

void Chart::SetColumnLabel(int column, const QString& label) {
    CheckIndex(*this, "column", column, columnCount());
    figures_->columnLabels[Figures::Entry(column)] = label;
}

void Chart::SetValue(int row, int column, double value) {
    CheckIndex(*this, "row", row, rowCount());
    CheckIndex(*this, "column", column, columnCount());
    figures_->values[figures_->Place(row, column)] = value;
}

void Chart::SetRange(double lowest, double highest) { figures_->range = QCPRange(lowest, highest); }

void Chart::Refresh() {
    figures_->plot->clearPlottables();
    figures_->DrawHeading();
    figures_->DrawAxes();
    for (int column = 1; column <= columnCount(); ++column) figures_->DrawSeries(column);
    figures_->plot->replot(QCustomPlot::rpQueuedReplot);
    NameItself();
    QStringList texts;
    for (int place = 1; place <= figures_->Places(); ++place) texts += FiguresOfPlace(place);
    setAccessibleDescription(texts.join(QStringLiteral("; ")));
}

/// By its title, unless the form has found a name of its own for it.
void Chart::NameItself() {
    if (accessibleName() != figures_->givenName) return;
    const QString words = title().trimmed();
    figures_->givenName = words.isEmpty() ? tr("Chart") : words;
    setAccessibleName(figures_->givenName);
}

QString Chart::FiguresOfPlace(int place) const {
    const QString label = figures_->PlaceLabel(place);
    if (rowCount() == 1) return label + QStringLiteral(": ") + Shown(value(1, place));
    QStringList texts;
    for (int column = 1; column <= columnCount(); ++column) {
        const QString name = columnLabel(column);
        const QString figure = Shown(value(place, column));
        texts += name.isEmpty() ? figure : QString(name + QLatin1Char(' ') + figure);
    }
    return label + QStringLiteral(": ") + texts.join(QStringLiteral(", "));
}

QString Chart::FiguresAsTable() const {
    QString text;
    for (int column = 1; column <= columnCount(); ++column) {
        text += QLatin1Char('\t') + columnLabel(column);
    }
    text += QLatin1Char('\n');
    for (int row = 1; row <= rowCount(); ++row) {
        text += rowLabel(row);
        for (int column = 1; column <= columnCount(); ++column) {
            text += QLatin1Char('\t') + Shown(value(row, column));
        }
        text += QLatin1Char('\n');
    }
    return text;
}

bool Chart::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::eventFilter(watched, event);
    auto* help = static_cast<QHelpEvent*>(event);
    const double key = figures_->plot->xAxis->pixelToCoord(help->x());
    const int place = static_cast<int>(std::lround(key));
    if (place >= 1 && place <= figures_->Places()) {
        QToolTip::showText(help->globalPos(), FiguresOfPlace(place), figures_->plot);
    }
    return true;
}

void Chart::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(FiguresAsTable());
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

/// The margin of one pixel around the plot is the frame.
void Chart::ShowFocus(bool focused) {
    QPalette palette;
    palette.setColor(QPalette::Window, focused ? focusColour : gridColour.darker(108));
    setPalette(palette);
}
