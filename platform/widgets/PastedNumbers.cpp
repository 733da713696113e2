// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/PastedNumbers.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <algorithm>
#include <utility>

namespace {

bool Parts(QChar character) {
    return character.isSpace() || character.category() == QChar::Punctuation_Dash ||
           character == QLatin1Char(',') || character == QLatin1Char(';');
}

bool IsDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Watches the boxes for what is pasted; Qt offers no way to see it before a box has cut it to its
/// own length.
class PasteDealer final : public QObject {
  public:
    explicit PasteDealer(const std::vector<QLineEdit*>& boxes)
        : QObject(boxes.front()), boxes_(boxes) {
        for (QLineEdit* box : boxes_) box->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto& box = static_cast<QLineEdit&>(*watched);
        switch (event->type()) {
            case QEvent::KeyPress:
                return static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste) &&
                       Deal(box, QGuiApplication::clipboard()->text());
            case QEvent::MouseButtonRelease:
                return static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton &&
                       QGuiApplication::clipboard()->supportsSelection() &&
                       Deal(box, QGuiApplication::clipboard()->text(QClipboard::Selection));
            case QEvent::Drop:
                return TakeDrop(box, static_cast<QDropEvent&>(*event));
            case QEvent::ContextMenu:
                ShowMenu(box, static_cast<QContextMenuEvent&>(*event));
                return true;
            default:
                return false;
        }
    }

  private:
    /// Whether these were several numbers, which are dealt then.
    bool Deal(QLineEdit& first, const QString& text) {
        const QStringList numbers = NumbersIn(text);
        if (numbers.size() < 2) return false;
        QLineEdit* last = &first;
        auto number = numbers.begin();
        for (auto box = std::ranges::find(boxes_, &first); box != boxes_.end(); ++box) {
            if ((*box)->isHidden() || !(*box)->isEnabled()) continue;
            last = *box;
            last->selectAll();
            last->insert(*number++);
            if (number == numbers.end()) break;
        }
        last->setFocus();
        return true;
    }

    bool TakeDrop(QLineEdit& box, QDropEvent& event) {
        if (!Deal(box, event.mimeData()->text())) return false;
        event.setDropAction(Qt::CopyAction);  // nothing is taken away where it came from
        event.accept();
        return true;
    }

    /// The box's own menu, whose Paste deals.
    void ShowMenu(QLineEdit& box, QContextMenuEvent& event) {
        QMenu* menu = box.createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        const auto actions = menu->actions();
        for (QAction* action : actions) {
            if (!action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
            action->disconnect(&box);
            connect(action, &QAction::triggered, &box, [this, &box] {
                if (!Deal(box, QGuiApplication::clipboard()->text())) box.paste();
            });
        }
        menu->popup(event.globalPos());
    }

    std::vector<QLineEdit*> boxes_;
};

}  // namespace

QStringList NumbersIn(const QString& text) {
    QStringList numbers;
    QString number;
    for (const QChar character : QString(text % QLatin1Char(' '))) {
        if (IsDigit(character)) number += character;
        if (Parts(character) && !number.isEmpty()) numbers += std::exchange(number, {});
    }
    return numbers;
}

void DealPastedNumbers(const std::vector<QLineEdit*>& boxes) {
    if (!boxes.empty()) new PasteDealer(boxes);
}
