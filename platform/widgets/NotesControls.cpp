// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/NotesControls.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int clearHeight = 24;  // eight rows fit a low screen

constexpr qsizetype longestLineOfNote = 20000;
constexpr const char* wholeNote = "wholeNote";

}  // namespace

Checklist::Checklist(QWidget* parent, QGridLayout& layout, int firstRow) : QObject(parent) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        BuildItem(parent, layout, firstRow + static_cast<int>(i), i);
    }
    layout.setRowStretch(firstRow + rows - 2, 1);
    newItem_ = Named(new QLineEdit(parent), QStringLiteral("Text2"));
    add_ = MakeButton(QStringLiteral("Command3"), tr("Add"), parent);
    connect(add_, &QPushButton::clicked, this, &Checklist::AddItem);
    connect(newItem_, &QLineEdit::returnPressed, this, &Checklist::AddItem);
    layout.addWidget(newItem_, firstRow + rows - 1, 0);
    layout.addWidget(add_, firstRow + rows - 1, 1);
}

void Checklist::BuildItem(QWidget* parent, QGridLayout& layout, int row, std::size_t index) {
    const int number = static_cast<int>(index);
    QCheckBox* item = items_.at(index) =
        Named(new QCheckBox(parent), Member(QStringLiteral("Check1"), number));
    item->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(item, &QCheckBox::clicked, this, &Checklist::changed);
    QPushButton* clear = clear_.at(index) =
        MakeButton(Member(QStringLiteral("Command4"), number), tr("Clear"), parent);
    clear->setMinimumHeight(0);
    clear->setMaximumHeight(clearHeight);
    clear->setToolTip(tr("Clear this item"));
    connect(clear, &QPushButton::clicked, this, [this, index] { ClearItem(index); });
    layout.addWidget(item, row, 0);
    layout.addWidget(clear, row, 1);
    SetCaption(index, {});
}

void Checklist::SetTips(const QString& box, const QString& add) {
    newItem_->setToolTip(box);
    newItem_->setAccessibleName(box);
    add_->setToolTip(add);
}

Checklist::Items Checklist::Shown() const {
    Items items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items.at(i) = {.ticked = items_.at(i)->isChecked(),
                       .caption = FromQString(captions_.at(i))};
    }
    return items;
}

void Checklist::Show(const Items& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        items_.at(i)->setChecked(items.at(i).ticked);
        SetCaption(i, ToQString(items.at(i).caption));
    }
}

void Checklist::SetCaptions(const std::array<QString, 8>& captions) {
    for (std::size_t i = 0; i < captions.size(); ++i) SetCaption(i, captions.at(i));
}

int Checklist::WidestItem() const {
    const auto width = [](const QCheckBox* item) { return item->sizeHint().width(); };
    return width(*std::ranges::max_element(items_, {}, width));
}

void Checklist::SetCaption(std::size_t index, const QString& caption) {
    captions_.at(index) = caption;
    items_.at(index)->setText(ShownCaption(Readable(caption)));
    const QString number = QString::number(index + 1);
    items_.at(index)->setAccessibleName(caption.isEmpty() ? tr("Empty item %1").arg(number)
                                                          : Readable(caption));
    clear_.at(index)->setAccessibleName(tr("Clear item %1").arg(number));
}

void Checklist::AddItem() {
    const auto empty = std::ranges::find_if(captions_, &QString::isEmpty);
    if (empty != captions_.end()) {
        SetCaption(static_cast<std::size_t>(empty - captions_.begin()), newItem_->text());
    }
    Q_EMIT changed();
}

void Checklist::ClearItem(std::size_t index) {
    SetCaption(index, {});
    items_.at(index)->setChecked(false);
    Q_EMIT changed();
}

void ShowNote(QPlainTextEdit& box, const std::string& note) {
    const QString text = ToQString(note);
    QStringList lines = text.split(QLatin1Char('\n'));
    const auto tooLong = [](const QString& line) { return line.size() > longestLineOfNote; };
    const bool cut = std::ranges::any_of(lines, tooLong);
    box.setProperty(wholeNote, cut ? QVariant(QByteArray::fromStdString(note)) : QVariant());
    box.setReadOnly(cut);
    box.setToolTip(cut ? QCoreApplication::translate(
                             "ShowNote",
                             "A line of this note is too long to be shown. The note is kept as "
                             "it is; to change it, open its file in an editor.")
                       : QString());
    if (!cut) return box.setPlainText(text);
    for (QString& line : lines) line = Readable(line);
    box.setPlainText(lines.join(QLatin1Char('\n')));
}

std::string NoteIn(const QPlainTextEdit& note) {
    const QVariant whole = note.property(wholeNote);
    if (whole.isValid()) return whole.toByteArray().toStdString();
    // The raw text keeps hard blanks, which the plain text would turn into common ones.
    QString text = note.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    text.replace(QChar::LineSeparator, QStringLiteral("\r\n"));
    return FromQString(text);
}
