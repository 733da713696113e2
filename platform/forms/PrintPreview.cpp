// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/PrintPreview.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "platform/forms/FormLayout.h"
#include "platform/forms/PageView.h"
#include "platform/system/FileDialogs.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/SystemPrinter.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int wholePage = 0;
constexpr int pageWidth = 1;
constexpr std::array<int, 6> percents = {50, 75, 100, 150, 200, 300};
constexpr double zoomStep = 1.25;
constexpr double hundred = 100;

PrintedSheets LaidOut(const PrintTask& task) {
    const QRectF room = OwnLayout(task.options).paintRect(QPageLayout::Millimeter);
    return task.layOut(room.size(), {});
}

}  // namespace

PreviewExits DesktopExits(Printers& printers) {
    return {.print =
                [&printers](QWidget* parent, const PrintTask& task) {
                    return PrintBySystemDialog(parent, task, [&printers](const QString& name) {
                        return printers.CorrectionOf(name);
                    });
                },
            .askForPdf = AskForPdfFile,
            .write = WriteUserFile};
}

PrintPreview::PrintPreview(Program& program, const PrintTask& task, PreviewExits exits,
                           QWidget* parent)
    : Form(program, QStringLiteral("PrintPreview"), tr("Preview: %1").arg(task.title), parent),
      task_(task),
      exits_(std::move(exits)),
      view_(
          Named(new PageView(LaidOut(task), OwnLayout(task.options)), QStringLiteral("PageView"))),
      zoom_(Named(new ComboList, QStringLiteral("Zoom"))),
      zoomShown_(MakeLabel(QStringLiteral("ZoomShown"), QString())),
      place_(MakeLabel(QStringLiteral("Place"), QString())) {
    view_->setAccessibleName(tr("Sheet"));
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(MakeTools());
    layout->addWidget(view_, 1);
    layout->addLayout(MakeActions());
    TabInReadingOrder();
    SetOpeningSize({820, 700});
}

QPushButton* PrintPreview::MakeTurn(const QString& name, const QString& icon,
                                    const QString& toolTip, int step) {
    QPushButton* turn = MakeIconButton(name, icon, toolTip);
    connect(turn, &QPushButton::clicked, this, [this, step] { TurnTo(view_->Sheet() + step); });
    return turn;
}

QLayout* PrintPreview::MakeTools() {
    zoom_->addItem(tr("Whole page"));
    zoom_->addItem(tr("Page width"));
    for (const int percent : percents) zoom_->addItem(tr("%1 %").arg(percent));
    back_ = MakeTurn(QStringLiteral("PreviousSheet"), QStringLiteral("go-previous"),
                     tr("Previous sheet (Page up)"), -1);
    forth_ = MakeTurn(QStringLiteral("NextSheet"), QStringLiteral("go-next"),
                      tr("Next sheet (Page down)"), 1);
    connect(zoom_, &ComboList::clicked, this, [this] { ChooseZoom(); });
    connect(view_, &PageView::zoomChanged, this, [this] { TellZoom(); });

    auto* tools = new QHBoxLayout;
    tools->addWidget(MakeLabel(QStringLiteral("ZoomTitle"), tr("Zoom:")));
    tools->addWidget(zoom_);
    zoom_->setAccessibleName(tr("Zoom"));
    tools->addWidget(zoomShown_);
    tools->addStretch(1);
    tools->addWidget(back_);
    tools->addWidget(place_);
    tools->addWidget(forth_);
    return tools;
}

QLayout* PrintPreview::MakeActions() {
    QPushButton* print =
        WithKeysOf(Command::Print, MakeButton(QStringLiteral("Print"), tr("Print...")));
    QPushButton* save =
        WithKeysOf(Command::Save, MakeButton(QStringLiteral("SaveAsPdf"), tr("Save as PDF...")));
    QPushButton* close = MakeButton(QStringLiteral("Close"), tr("Close"));
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    connect(save, &QPushButton::clicked, this, [this] { SaveAsPdf(); });
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    SetCloseButton(close);
    return BuildActionRow({print, save}, {close});
}

void PrintPreview::Load() {
    zoom_->SetIndex(wholePage);
    view_->SetFit(PageView::Fit::WholePage);
    TellZoom();
    TurnTo(0);
    view_->setFocus();
}

void PrintPreview::ChooseZoom() {
    const int index = zoom_->Index();
    if (index < 0) return;
    if (index == wholePage) {
        view_->SetFit(PageView::Fit::WholePage);
    } else if (index == pageWidth) {
        view_->SetFit(PageView::Fit::Width);
    } else {
        view_->SetZoom(percents.at(static_cast<std::size_t>(index - pageWidth - 1)) / hundred);
    }
}

void PrintPreview::StepZoom(int steps) {
    view_->SetZoom(view_->Zoom() * (steps > 0 ? zoomStep : 1 / zoomStep));
}

void PrintPreview::TellZoom() {
    const QString shown = tr("%1 %").arg(qRound(view_->Zoom() * hundred));
    zoomShown_->setText(shown);
    // A zoom by keys or wheel is none of the list.
    if (view_->FitNow() == PageView::Fit::None) zoom_->SetIndex(zoom_->findText(shown));
}

void PrintPreview::TurnTo(int sheet) {
    view_->ShowSheet(sheet);
    place_->setText(tr("Sheet %1 of %2").arg(view_->Sheet() + 1).arg(view_->SheetCount()));
    back_->setEnabled(view_->Sheet() > 0);
    forth_->setEnabled(view_->Sheet() + 1 < view_->SheetCount());
}

void PrintPreview::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    const int key = event->key();
    if (control && (key == Qt::Key_Plus || key == Qt::Key_Equal)) {
        StepZoom(1);
    } else if (control && key == Qt::Key_Minus) {
        StepZoom(-1);
    } else if (key == Qt::Key_PageUp) {
        TurnTo(view_->Sheet() - 1);
    } else if (key == Qt::Key_PageDown) {
        TurnTo(view_->Sheet() + 1);
    } else if (key == Qt::Key_Home) {
        TurnTo(0);
    } else if (key == Qt::Key_End) {
        TurnTo(view_->SheetCount() - 1);
    } else {
        Form::keyPressEvent(event);
    }
}

void PrintPreview::Print() {
    const QString printer = exits_.print(this, task_);
    if (!printer.isEmpty()) Say(tr("Printed on %1").arg(printer));
}

void PrintPreview::SaveAsPdf() {
    const QString path = exits_.askForPdf(this, task_.title);
    if (path.isEmpty()) return;
    const QString reason = exits_.write(path, PdfOf(task_, {}));
    const QString name = QFileInfo(path).fileName();
    if (reason.isEmpty()) {
        Say(tr("Saved as %1").arg(name));
        return;
    }
    services().messages.Show(this, {.title = tr("Save as PDF"),
                                    .text = tr("%1 could not be written: %2").arg(path, reason),
                                    .sign = Sign::Exclamation});
}
