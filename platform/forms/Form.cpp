// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Form.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPushButton>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "platform/forms/RoomOnScreen.h"
#include "platform/forms/SaidLine.h"
#include "platform/forms/ScrollingBody.h"
#include "platform/forms/Skin.h"
#include "platform/forms/WindowSize.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OneLine.h"

namespace {

/// What lies in the widget, be it that it scrolls there; null where nothing is laid out in it.
const QLayout* LayoutIn(const QWidget& widget) {
    const auto* body = qobject_cast<const ScrollingBody*>(&widget);
    return body == nullptr ? widget.layout() : body->Content().layout();
}

/// The widgets of a layout that take the focus, in the order in which they stand in it.
void CollectWidgets(const QLayout& layout, std::vector<QWidget*>& widgets) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        QWidget* widget = item->widget();
        const QLayout* inner = widget == nullptr ? item->layout() : LayoutIn(*widget);
        if (inner != nullptr) CollectWidgets(*inner, widgets);
        const bool focus = widget != nullptr && widget->focusPolicy() != Qt::NoFocus;
        if (focus) widgets.push_back(widget);
    }
}

bool IsPlainEnter(const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return enter && (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

Form::Form(Program& program, const QString& name, const QString& caption, QWidget* parent)
    : QDialog(parent), program_(program), helpPage_(QStringLiteral("help.html")) {
    setObjectName(name);
    setWindowTitle(caption);
}

void Form::Say(const QString& text) {
    auto* said = findChild<SaidLine*>();
    if (said == nullptr) {
        throw Failure("The form " + FromQString(objectName()) + " has no row of buttons to say \"" +
                      FromQString(text) + "\" beside");
    }
    said->Say(text);
}

void Form::OpenHelp() const { services().openPage(helpPage_); }

void Form::reject() { CloseAsTheUserDoes(); }

void Form::CloseAsTheUserDoes() {
    if (unloading_ || closeButton_ == nullptr) {
        QDialog::reject();
    } else {
        closeButton_->click();
    }
}

bool Form::FitsScreen() const {
    const QSize room = RoomOnScreen(*this);
    QSize least = layout()->totalMinimumSize();
    if (layout()->hasHeightForWidth()) {
        const int width = qMin(openingSize_.expandedTo(sizeHint()).width(), room.width());
        least = least.expandedTo({0, layout()->totalMinimumHeightForWidth(width)});
    }
    return least.boundedTo(room) == least;
}

// What was added to the inner layouts of a frame reaches the size hint only with an activation, and
// a text that wraps may need more lines in the form's width than the hint counts on.
void Form::TakeOpeningSize() {
    layout()->activate();
    if (!FitsScreen()) {
        LetScroll(*this, findChild<SaidLine*>());
        layout()->activate();
    }
    const QSize room = RoomOnScreen(*this);
    const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    QSize size = wanted.expandedTo(openingSize_).expandedTo(sizeHint()).boundedTo(room);
    if (layout()->hasHeightForWidth()) {
        const int wrapped = layout()->totalHeightForWidth(size.width());
        size.setHeight(qMax(size.height(), qMin(wrapped, room.height())));
    }
    resize(size);
    RememberSize(*this, services().windows);
}

// Qt would make a default button of the first one in the dialog, and keep the first that had the
// focus as the default where the form has named none.
void Form::setVisible(bool visible) {
    if (visible) {
        const auto buttons = findChildren<QPushButton*>();
        for (QPushButton* button : buttons) button->setAutoDefault(false);
        KeepTextBoxesToOneLine(*this);
        if (layout() != nullptr && !std::exchange(opened_, true)) TakeOpeningSize();
    }
    QDialog::setVisible(visible);
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        services().openPage(helpPage_ % QLatin1Char('#') % objectName());
        return;
    }
    auto* focused = qobject_cast<QPushButton*>(focusWidget());
    if (focused != nullptr && IsPlainEnter(*event)) {
        focused->click();
        return;
    }
    QDialog::keyPressEvent(event);
}

void Form::closeEvent(QCloseEvent* event) {
    if (unloading_ || !isVisible()) {
        event->accept();
        return;
    }
    CloseAsTheUserDoes();
    event->setAccepted(!isVisible());
}

void Form::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    if (picture_.isNull()) return;
    QPainter painter(this);
    PaintSkin(painter, rect(), picture_, palette());
}

// The chain is a circle that the form itself is part of, and Qt leaves alone what already follows
// in it, even across its start. Moved behind the first widget twice, each one is moved once.
void Form::TabInReadingOrder() {
    std::vector<QWidget*> widgets;
    CollectWidgets(*layout(), widgets);
    for (int time = 1; time <= 2; ++time) {
        for (std::size_t i = widgets.size(); i-- > 1;) setTabOrder(widgets.front(), widgets[i]);
    }
}

void Form::Unload() {
    unloading_ = true;
    done(Rejected);
    unloading_ = false;
}

void Form::Skinning(const QString& pictureFile, const SkinLabels& labels) {
    const bool pictures = SkinChoiceOf(state()).pictures;
    const QPixmap picture = SkinPicture(state(), folder(), pictureFile);
    if (!pictures || !picture.isNull()) picture_ = picture;
    ApplySkinColours(state(), *this, labels);
    update();
}
