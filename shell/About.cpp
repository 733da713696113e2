// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/About.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/settings.h"
#include "platform/forms/FormLayout.h"
#include "platform/system/OpenPage.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Commands.h"
#include "platform/widgets/LinkLabel.h"
#include "platform/widgets/Widgets.h"
#include "shell/own_addresses.h"
#include "shell/program_version.h"

namespace {

constexpr int emblemEdge = 96;

QString Words(const char* text) { return QString::fromLatin1(text); }

QLabel* MakeEmblem() {
    auto* emblem = new QLabel;
    emblem->setPixmap(QIcon(QStringLiteral(":/icons/icons/quillon.svg")).pixmap(emblemEdge));
    return emblem;
}

}  // namespace

About::About(Program& program, QWidget* parent)
    : Form(program, QStringLiteral("About"), tr("About ") % Words(programTitle), parent) {
    QPushButton* close = MakeCommandButton(QStringLiteral("cmdOK"), Command::Close, tr(" Close "));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, [this] { Unload(); });
    SetCloseButton(close);

    auto* body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(MakeEmblem(), 0, Qt::AlignTop);
    body->addLayout(BuildWords(), 1);
    QVBoxLayout* layout = MakeFormLayout(this);
    layout->addLayout(body, 1);
    layout->addSpacing(8);
    layout->addLayout(BuildActionRow({}, {close}));
    TabInReadingOrder();
    close->setFocus();
}

QLayout* About::BuildWords() {
    auto* words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(MakeTitle(QStringLiteral("lblTitle"), Words(programTitle)));
    words->addWidget(
        MakeLabel(QStringLiteral("lblVersion"), tr("Version ") % ToQString(ProgramVersion())));
    words->addSpacing(16);
    words->addLayout(BuildAddresses());
    words->addSpacing(16);
    words->addWidget(MakeBody(
        QStringLiteral("Licence"),
        tr("Free software under the GNU General Public License, version 3 or later. It comes "
           "without any warranty, and with no promise to win.")));
    words->addStretch(1);
    return words;
}

QLayout* About::BuildAddresses() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(1, 1);
    const QString site = ToQString(view().Settings(setting::LinkAddresses));
    AddAddress(*grid, MakeLabel(QStringLiteral("Label11"), tr("Web:")), QStringLiteral("Label3"),
               site, site);
    AddAddress(*grid, MakeLabel(QStringLiteral("Label14"), tr("Support:")),
               QStringLiteral("Label9"), Words(supportMail), LetterTo(Words(supportMail)));
    AddAddress(*grid, MakeLabel(QStringLiteral("Label15"), tr("General:")),
               QStringLiteral("Label10"), Words(generalMail), LetterTo(Words(generalMail)));
    constexpr int apart = 12;
    grid->setRowMinimumHeight(grid->rowCount(), apart);
    constexpr std::array names = {"Label5", "Label17", "Label20"};
    for (std::size_t line = 0; line < names.size(); ++line) {
        grid->addWidget(MakeLabel(Words(names.at(line)), Words(postalAddress.at(line))),
                        grid->rowCount(), 1);
    }
    return grid;
}

void About::AddAddress(QGridLayout& grid, QLabel* heading, const QString& name,
                       const QString& address, const QString& page) {
    auto* link = new LinkLabel(name, address);
    link->setAccessibleName(heading->text() % QLatin1Char(' ') % address);
    connect(link, &LinkLabel::clicked, this, [this, page] { services().openPage(page); });
    const int row = grid.rowCount();
    grid.addWidget(heading, row, 0);
    grid.addWidget(link, row, 1);
}
