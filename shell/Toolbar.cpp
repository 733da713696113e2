// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Toolbar.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

#include "core/british_dates.h"
#include "platform/widgets/Widgets.h"
#include "shell/MainMenu.h"

namespace {

constexpr int pictureSize = 26;  // 390 twips
constexpr int pictureMargin = 2;
constexpr int groupGap = 12;
constexpr int airBeside = 8;
constexpr int statusWidth = 110;

struct PictureText {
    const char* toolTip;
    const char* menuEntry;  // none: the download, which depends on the region
    bool startsGroup = false;
};

constexpr std::array<PictureText, Toolbar::pictureCount> pictureTexts = {{
    {QT_TRANSLATE_NOOP("Toolbar", " Show notes, checklist, etc. "), "FileNotes"},
    {QT_TRANSLATE_NOOP("Toolbar", " Download latest lottery results "), nullptr, true},
    {QT_TRANSLATE_NOOP("Toolbar", " View lottery draws databases "), "wDatabaseView"},
    {QT_TRANSLATE_NOOP("Toolbar", " Check lottery entries to see if you have won "),
     "DatabaseCheck"},
    {QT_TRANSLATE_NOOP("Toolbar", " Type in your lottery entries "), "DatabaseStoreDrawsW"},
    {QT_TRANSLATE_NOOP("Toolbar", " Chart the most common numbers "), "AnalysisCommon", true},
    {QT_TRANSLATE_NOOP("Toolbar", " Statistical analysis of lottery numbers "), "AnalyseNumStats"},
    {QT_TRANSLATE_NOOP("Toolbar", " Chart odd:even number ratios "), "AnalyseOddEven"},
    {QT_TRANSLATE_NOOP("Toolbar", " Full selection pick "), "PlayFullSel", true},
    {QT_TRANSLATE_NOOP("Toolbar", " Hot numbers pick "), "PlayHot"},
    // Kept on purpose: the picture of a lucky dip opens the numerology form.
    {QT_TRANSLATE_NOOP("Toolbar", " Lucky dip pick "), "PlayLucky"},
    {QT_TRANSLATE_NOOP("Toolbar", " Create your own wheel "), "PlayDIYWheels"},
    {QT_TRANSLATE_NOOP("Toolbar", " Browse the Internet "), "LinksLink(0)", true},
    {QT_TRANSLATE_NOOP("Toolbar", " Lottery information "), "HelpLotteryInfo"},
    {QT_TRANSLATE_NOOP("Toolbar", " Help "), "HelpHelp"},
    {QT_TRANSLATE_NOOP("Toolbar", " Quit "), "FileExit", true},
}};

QString DownloadEntry(const Region& region) {
    return BritishDates(region) ? QStringLiteral("DatabaseUpdate") : QStringLiteral("DatabaseUS");
}

}  // namespace

ToolbarPicture::ToolbarPicture(int index, const QString& toolTip, QWidget* parent)
    : QToolButton(parent) {
    setObjectName(Member(QStringLiteral("Image1"), index));
    setFixedSize(pictureSize, pictureSize);
    setAutoRaise(true);
    setMouseTracking(true);
    setToolTip(toolTip);
    setAccessibleName(toolTip.trimmed());
}

void ToolbarPicture::SetBordered(bool bordered) {
    if (bordered_ == bordered) return;
    bordered_ = bordered;
    update();
}

void ToolbarPicture::SetDimmed(bool dimmed) {
    if (dimmed_ == dimmed) return;
    dimmed_ = dimmed;
    update();
}

void ToolbarPicture::enterEvent(QEnterEvent* event) {
    QToolButton::enterEvent(event);
    Q_EMIT mouseOver();
}

void ToolbarPicture::focusInEvent(QFocusEvent* event) {
    // Only who walks by keyboard wants to see where the focus is.
    focusVisible_ =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QToolButton::focusInEvent(event);
}

void ToolbarPicture::focusOutEvent(QFocusEvent* event) {
    focusVisible_ = false;
    QToolButton::focusOutEvent(event);
}

void ToolbarPicture::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
            event->ignore();  // the toolbar moves the focus
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            break;
        default:
            QToolButton::keyPressEvent(event);
    }
}

void ToolbarPicture::mouseMoveEvent(QMouseEvent* event) {
    QToolButton::mouseMoveEvent(event);
    // The move ends here: passed on, the background would take the border away again.
    event->accept();
    Q_EMIT mouseOver();
}

void ToolbarPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor highlight = palette().color(QPalette::Highlight);
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (bordered_ || focusVisible_ || isDown()) {
        QColor fill = highlight;
        fill.setAlpha(isDown() ? 90 : 36);
        painter.setPen(QPen(highlight, focusVisible_ && !bordered_ ? 2 : 1));
        painter.setBrush(bordered_ || isDown() ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.drawRoundedRect(edge, 4, 4);
    }
    painter.setOpacity(dimmed_ ? 0.4 : 1.0);
    icon().paint(&painter, rect().marginsRemoved(
                               {pictureMargin, pictureMargin, pictureMargin, pictureMargin}));
}

Toolbar::Toolbar(const Region& region, QWidget* parent)
    : QLabel(parent), download_(DownloadEntry(region)) {
    setObjectName(QStringLiteral("Label1"));
    setMouseTracking(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(airBeside, 6, airBeside, 7);
    layout->setSpacing(4);
    for (int i = 0; i < pictureCount; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (pictureTexts.at(place).startsGroup) layout->addSpacing(groupGap);
        auto* picture = new ToolbarPicture(
            i, QCoreApplication::translate("Toolbar", pictureTexts.at(place).toolTip), this);
        pictures_.at(place) = picture;
        picture->setFocusPolicy(i == current_ ? Qt::TabFocus : Qt::NoFocus);
        layout->addWidget(picture);
        connect(picture, &ToolbarPicture::mouseOver, this, [this, i] { MoveBorderTo(i); });
        connect(picture, &QToolButton::clicked, this, [this, i] { Q_EMIT chosen(EntryOf(i)); });
    }
    layout->addStretch();
    layout->addSpacing(statusWidth);
    // A label asks for the room of its text alone, so the pictures' room is set here.
    setFixedHeight(layout->sizeHint().height());
    setMinimumWidth(layout->sizeHint().width());
}

void Toolbar::LoadPictures() {
    for (int i = 0; i < pictureCount; ++i) {
        Picture(i)->setIcon(
            QIcon(QStringLiteral(":/icons/icons/toolbar%1.svg").arg(i, 2, 10, QLatin1Char('0'))));
    }
}

QString Toolbar::EntryOf(int index) const {
    const char* entry = pictureTexts.at(static_cast<std::size_t>(index)).menuEntry;
    return entry == nullptr ? download_ : QString::fromLatin1(entry);
}

void Toolbar::DimPictures(const MainMenu& menu) {
    for (int i = 0; i < pictureCount; ++i) {
        Picture(i)->SetDimmed(!menu.Entry(EntryOf(i))->isEnabled());
    }
}

void Toolbar::GivePicturesTo(const MainMenu& menu) const {
    for (int i = 0; i < pictureCount; ++i) menu.Entry(EntryOf(i))->setIcon(Picture(i)->icon());
}

void Toolbar::ClearBorders() {
    for (ToolbarPicture* picture : pictures_) picture->SetBordered(false);
}

void Toolbar::MoveBorderTo(int index) {
    for (int i = 0; i < pictureCount; ++i) Picture(i)->SetBordered(i == index);
}

void Toolbar::keyPressEvent(QKeyEvent* event) {
    constexpr int last = pictureCount - 1;
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveFocusTo(qMax(current_ - 1, 0));
        case Qt::Key_Right:
            return MoveFocusTo(qMin(current_ + 1, last));
        case Qt::Key_Home:
            return MoveFocusTo(0);
        case Qt::Key_End:
            return MoveFocusTo(last);
        default:
            QLabel::keyPressEvent(event);
    }
}

void Toolbar::MoveFocusTo(int index) {
    Picture(current_)->setFocusPolicy(Qt::NoFocus);
    current_ = index;
    Picture(current_)->setFocusPolicy(Qt::TabFocus);
    Picture(current_)->setFocus(Qt::TabFocusReason);
}

void Toolbar::leaveEvent(QEvent* event) {
    // A quick pointer jumps to a control that keeps its moves for itself.
    QLabel::leaveEvent(event);
    ClearBorders();
}

void Toolbar::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    ClearBorders();
}

void Toolbar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor background = palette().color(QPalette::Window);
    background.setAlpha(235);
    painter.fillRect(rect(), background);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlpha(50);
    painter.fillRect(rect().adjusted(0, height() - 1, 0, 0), line);
    PaintStatus(painter);
}

/// The label's own text, at the end of the row of pictures, in letters that leave room for its
/// lines.
void Toolbar::PaintStatus(QPainter& painter) const {
    const QRect room(width() - airBeside - statusWidth, 0, statusWidth, height() - 1);
    const QString status = text().remove(QLatin1Char('\r'));
    QFont letters = font();
    const auto fits = [&] {
        const QSize size = QFontMetrics(letters).size(0, status);
        return size.boundedTo(room.size()) == size;
    };
    while (letters.pointSize() > 1 && !fits()) letters.setPointSize(letters.pointSize() - 1);
    painter.setFont(letters);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, status);
}
