// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/DroppedFile.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

/// Lets files that are dragged over a control go on to what it lies in.
class FilesGoOn : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::DragEnter) return false;
        auto* drag = dynamic_cast<QDragEnterEvent*>(event);
        if (drag == nullptr || DroppedFile(*drag->mimeData()).isEmpty()) return false;
        drag->ignore();
        return true;
    }
};

}  // namespace

QString DroppedFile(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

void TakeDroppedFiles(QWidget& window) {
    auto* filter = new FilesGoOn(&window);
    const auto controls = window.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (control->acceptDrops()) control->installEventFilter(filter);
    }
    window.setAcceptDrops(true);
}
