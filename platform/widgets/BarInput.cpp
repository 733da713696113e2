// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/BarInput.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "platform/widgets/ClickableLabel.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr quint64 digitsBelongTogether = 1000;  // milliseconds
constexpr int notch = 120;                      // what the wheel turns at one notch
constexpr int ring = 2;                         // pixels
constexpr double smallPrint = 0.85;

/// The bar, which takes digits and shows a ring while it has the focus.
class NumberBar final : public QScrollBar {
  public:
    NumberBar() : QScrollBar(Qt::Horizontal) {
        setFocusPolicy(Qt::StrongFocus);
        setInvertedControls(false);  // upward is more, as in other number inputs
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const QString text = event->text();
        const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
        if (plain && text.size() == 1 && text.front().isDigit()) {
            TakeDigit(text.front().digitValue(), event->timestamp());
        } else {
            typed_ = 0;
            QScrollBar::keyPressEvent(event);
        }
    }

    void focusInEvent(QFocusEvent* event) override {
        typed_ = 0;
        QScrollBar::focusInEvent(event);
        update();
    }

    void focusOutEvent(QFocusEvent* event) override {
        QScrollBar::focusOutEvent(event);
        update();
    }

    void paintEvent(QPaintEvent* event) override {
        QScrollBar::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), ring));
        const qreal half = ring / 2.0;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), ring, ring);
    }

  private:
    void TakeDigit(int digit, quint64 milliseconds) {
        const bool continues = typed_ > 0 && milliseconds - typedAt_ <= digitsBelongTogether;
        const int longer = continues ? 10 * typed_ + digit : digit;
        typed_ = longer <= maximum() ? longer : digit;
        typedAt_ = milliseconds;
        if (typed_ >= minimum() && typed_ <= maximum()) setValue(typed_);
    }

    int typed_ = 0;
    quint64 typedAt_ = 0;
};

QLabel* MakeEnd(const QString& name) {
    QLabel* label = MakeLabel(name, QString());
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * smallPrint);
    label->setFont(font);
    return label;
}

}  // namespace

BarInput::BarInput(const QString& barName, const QString& valueName, const QString& meaning,
                   const BarRange& range, QWidget* parent)
    : QWidget(parent),
      bar_(Named(new NumberBar, barName)),
      shown_(Named(new ClickableLabel, valueName)),
      lowest_(MakeEnd(barName + QStringLiteral(" lowest"))),
      highest_(MakeEnd(barName + QStringLiteral(" highest"))) {
    bar_->setRange(range.lowest, range.highest);
    bar_->setValue(range.value);
    bar_->setPageStep(range.largeChange);
    bar_->setAccessibleName(meaning);
    bar_->setAccessibleDescription(tr("Type digits to set the number"));
    connect(bar_, &QScrollBar::rangeChanged, this, [this] { ShowRange(); });
    connect(bar_, &QScrollBar::valueChanged, this, [this](int value) {
        SetShownText(QString::number(value));
        Q_EMIT changed(value);
    });
    for (QWidget* part : Parts()) part->installEventFilter(this);
    LayOut();
    ShowRange();
    SetShownText(QString::number(range.value));
}

void BarInput::LayOut() {
    QFont bold = shown_->font();
    bold.setBold(true);
    shown_->setFont(bold);
    shown_->setTextFormat(Qt::PlainText);
    shown_->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(QStringLiteral("000")));
    connect(shown_, &ClickableLabel::clicked, this,
            [this] { bar_->setFocus(Qt::MouseFocusReason); });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(1, 1);
    grid->addWidget(bar_, 0, 0, 1, 3);
    grid->addWidget(shown_, 0, 3);
    grid->addWidget(lowest_, 1, 0);
    grid->addWidget(highest_, 1, 2);
}

int BarInput::Value() const { return bar_->value(); }

int BarInput::Lowest() const { return bar_->minimum(); }

int BarInput::Highest() const { return bar_->maximum(); }

void BarInput::SetValue(int value) { bar_->setValue(value); }

void BarInput::SetHighest(int highest) { bar_->setMaximum(highest); }

QString BarInput::ShownText() const { return shown_->text(); }

void BarInput::SetShownText(const QString& text) { shown_->setText(text); }

void BarInput::ShowRange() {
    lowest_->setText(QString::number(Lowest()));
    highest_->setText(QString::number(Highest()));
}

void BarInput::setVisible(bool visible) {
    QWidget::setVisible(visible);
    for (QWidget* part : Parts()) part->setVisible(visible);
}

std::array<QWidget*, 4> BarInput::Parts() const { return {bar_, shown_, lowest_, highest_}; }

bool BarInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QWidget::eventFilter(watched, event);
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
}

void BarInput::wheelEvent(QWheelEvent* event) {
    turned_ += event->angleDelta().y() + event->angleDelta().x();
    const int notches = turned_ / notch;
    turned_ -= notches * notch;
    SetValue(Value() + notches);
    event->accept();
}
