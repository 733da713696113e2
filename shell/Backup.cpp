// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Backup.h"

#include <QDir>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>

#include "core/failure.h"
#include "platform/forms/FormLayout.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"
#include "shell/data_files.h"

namespace {

/// The path of a folder in another, whose path may end with a separator.
QString PathIn(const QString& folder, const QString& name) {
    const QChar separator = QDir::separator();
    return folder % (folder.endsWith(separator) ? QString() : QString(separator)) % name;
}

/// A button with one word on it, for which only a tool-tip is given; two of them have the same one.
QPushButton* MakeCopyButton(const QString& name, const QString& icon, const QString& word) {
    const QString toolTip = Backup::tr(" Copy the currently selected file ");
    IconButton* button = MakeIconButton(name, icon, toolTip);
    button->setText(word);
    button->setAccessibleName(word % QStringLiteral(": ") % toolTip.trimmed());
    return button;
}

}  // namespace

Backup::Backup(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("Backup"), tr("Backup and Restore"), parent),
      data_({}),
      backups_(backupFolder) {
    auto* title = MakeTitle(QStringLiteral("Label4"), tr("Backup / Restore"));
    auto* explanation =
        MakeBody(QStringLiteral("Label3"),
                 tr("Make backups of data files, such as the lottery draw databases and syndicate "
                    "information. If there is a problem, restoring a backup might cure it."));
    auto* note = MakeBody(QStringLiteral("Label5"),
                          tr("Backups are not removed when the program is uninstalled. You can "
                             "re-install the program and then restore the backups to cure a disk "
                             "problem."));
    auto* close = MakeCommandButton(QStringLiteral("Command3"), Command::Close, tr(" Close "));
    SetCloseButton(close);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });

    auto* sides = new QHBoxLayout;
    sides->setSpacing(16);
    sides->addLayout(
        MakeSide(data_, MakeLabel(QStringLiteral("Label1"), tr(" Data files:")),
                 QStringLiteral("Text1"), QStringLiteral("List1"),
                 MakeCopyAll(QStringLiteral("Command4"), tr("Back up all"),
                             tr(" Copy all files to backup folder "), data_, backups_)));
    sides->addLayout(MakeCopyButtons());
    sides->addLayout(
        MakeSide(backups_, MakeLabel(QStringLiteral("Label2"), tr(" Backups:")),
                 QStringLiteral("Text2"), QStringLiteral("List2"),
                 MakeCopyAll(QStringLiteral("Command5"), tr("Restore all"),
                             tr(" Copy all backup files to program folder "), backups_, data_)));
    auto* body = new QVBoxLayout;
    body->setSpacing(12);
    body->addLayout(sides, 1);
    body->addWidget(note);
    LayOutForm(this, title, explanation, body, BuildActionRow({}, {close}));
    TabInReadingOrder();
    data_.list->setFocus();
    SetOpeningSize({940, 600});
}

QLayout* Backup::MakeSide(Side& side, QLabel* title, const QString& pathName,
                          const QString& listName, QWidget* copyAll) {
    side.path = Named(new QLineEdit, pathName);
    side.path->setReadOnly(true);
    side.path->setAccessibleName(title->text().trimmed() % tr(" folder"));
    side.list = Titled(title, Named(new ListBox, listName));
    side.list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const QString widest(static_cast<int>(BackupEntry({}, {}).size()) + 4, QLatin1Char('0'));
    side.list->setMinimumSize(side.list->fontMetrics().horizontalAdvance(widest), 120);
    auto* below = new QHBoxLayout;
    below->addWidget(copyAll);
    below->addStretch(1);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(title);
    column->addWidget(side.path);
    column->addSpacing(2);
    column->addWidget(side.list, 1);
    column->addSpacing(4);
    column->addLayout(below);
    return column;
}

QLayout* Backup::MakeCopyButtons() {
    auto* backUp =
        MakeCopyButton(QStringLiteral("Command1"), QStringLiteral("go-next"), tr("Back up"));
    backUp->setLayoutDirection(Qt::RightToLeft);  // the arrow stands where it leads to
    auto* restore =
        MakeCopyButton(QStringLiteral("Command2"), QStringLiteral("go-previous"), tr("Restore"));
    connect(backUp, &QPushButton::clicked, this, [this] { CopySelected(data_, backups_); });
    connect(restore, &QPushButton::clicked, this, [this] { CopySelected(backups_, data_); });
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addStretch(1);
    column->addWidget(backUp);
    column->addWidget(restore);
    column->addStretch(1);
    return column;
}

QWidget* Backup::MakeCopyAll(const QString& name, const QString& caption, const QString& toolTip,
                             Side& from, Side& to) {
    auto* button = MakeButton(name, caption);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, [this, &from, &to] { CopyAll(from, to); });
    return button;
}

void Backup::Load() {
    Skinning(QStringLiteral("SkinFile.jpg"),
             {.title = {QStringLiteral("Label4")},
              .body = {QStringLiteral("Label3")},
              .small = {QStringLiteral("Label1"), QStringLiteral("Label2")},
              .status = {QStringLiteral("Label5")}});
    ReadDir();
}

void Backup::ReadDir() {
    if (!folder().FolderExists(backupFolder)) {
        throw Failure(std::string(backupFolder) +
                      ": expected the folder of the backups in the program's folder, but there is "
                      "none.");
    }
    const QString path = services().folderPath;
    data_.path->setText(path);
    backups_.path->setText(PathIn(path, ToQString(backupFolder)));
    for (Side* side : {&data_, &backups_}) {
        side->path->setToolTip(side->path->text());
        Fill(*side);
    }
}

void Backup::Fill(Side& side) {
    side.files.Read(folder());
    side.list->clear();
    for (std::size_t row = 0; row < side.files.Count(); ++row) {
        side.list->addItem(ToQString(side.files.Entry(row)));
    }
}

void Backup::CopySelected(Side& from, Side& to) {
    if (from.list->Index() >= 0) Say(tr("Copied: %1").arg(ToQString(CopyChosen(from, to))));
}

/// Copies the chosen file, and leaves both lists as if they were read anew. Only that file is
/// looked up on the disk, which for hundreds of files makes seconds of minutes.
std::string Backup::CopyChosen(Side& from, Side& to) {
    const std::string entry = FromQString(from.list->item(from.list->Index())->text());
    const std::string name = NameInEntry(entry);
    const std::string path = from.files.PathOf(name);
    if (&to == &data_) KeepIfDifferent(folder(), name, folder().Read(path));
    folder().Copy(path, to.files.PathOf(name));
    for (Side* side : {&from, &to}) Renew(*side, name);
    return name;
}

void Backup::Renew(Side& side, const std::string& name) {
    side.list->SetIndex(-1);
    const auto change = side.files.Renew(folder(), name);
    if (!change) return;
    const auto row = static_cast<int>(change->row);
    if (change->added) side.list->insertItem(row, QString());
    side.list->item(row)->setText(ToQString(side.files.Entry(change->row)));
}

void Backup::CopyAll(Side& from, Side& to) {
    const Hourglass hourglass;
    const int count = from.list->count();
    for (int row = 0; row < count; ++row) {
        from.list->SetIndex(row);
        CopyChosen(from, to);
    }
}
