// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/SMembers.h"

#include <QLabel>
#include <QLineEdit>

#include "core/failure.h"
#include "core/settings.h"
#include "core/text.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Readable.h"
#include "platform/widgets/Widgets.h"
#include "syndicates/SyndicateReadAnew.h"
#include "syndicates/members.h"

void SMembers::Load() {
    QStringList small;
    for (int index = 0; index <= 5; ++index) small += Member(QStringLiteral("Label2"), index);
    Skinning(QStringLiteral("SkinSyndicates.jpg"), {.title = {QStringLiteral("Label1")},
                                                    .body = {QStringLiteral("Label7")},
                                                    .small = small,
                                                    .status = {}});
    ShowAll();
}

void SMembers::ShowAll() {
    syndicate_->setText(Readable(ToQString(view().Members(0, member_column::SyndicateName))));
    manager_->setText(Readable(ToQString(view().Members(0, member_column::Name))));
    FillList();
    dirty_.Clear();
}

void SMembers::FillList() {
    members_->clear();
    const int count = MemberCount(view());
    for (int row = 1; row <= count; ++row) {
        members_->addItem(ToQString(view().Members(row, member_column::Name)));
    }
}

void SMembers::Add() {
    MemberDetails member{.texts = boxes_.Typed(), .payBy = FromQString(payBy_->currentText())};
    for (std::string& text : member.texts) text = Trim(text);
    const std::string name = member.texts.front();
    if (name.empty()) return Say(tr("A member needs a name"));
    const int before = MemberCount(view());
    AddMember(state(), member);
    boxes_.Clear();
    FillList();
    dirty_.Set();
    boxes_.Name()->setFocus();
    const bool isNew = MemberCount(view()) > before;
    Say((isNew ? tr("%1 added, not saved yet") : tr("%1 updated, not saved yet"))
            .arg(ToQString(name)));
}

void SMembers::ShowChosen() {
    const int row = members_->Index() + 1;
    PersonBoxes::Texts texts;
    int column = 0;
    for (std::string& text : texts) text = view().Members(row, column++);
    boxes_.Show(texts);
    const std::string& method = view().Members(row, member_column::PayBy);
    const int index = PayByIndex(method);
    if (index < 0) {
        throw Failure(view().Settings(setting::SyndicateFile) + ", member " +
                      Quoted(texts.front()) + ": expected one of the four ways to pay, but " +
                      Quoted(method) + " stands there.");
    }
    payBy_->SetIndex(index);
}

void SMembers::Delete() {
    if (members_->Index() < 0) {
        services().messages.Show(this, {.title = tr("Help"),
                                        .text = tr("Select a member first!    "),
                                        .sign = Sign::Exclamation});
        return;
    }
    const Hourglass hourglass;
    const std::string name = view().Members(members_->Index() + 1, member_column::Name);
    DeleteMember(state(), name);
    FillList();
    dirty_.Set();
    Clear();
    Say(tr("%1 deleted, not saved yet").arg(ToQString(name)));
}

void SMembers::Clear() {
    boxes_.Clear();
    members_->SetIndex(-1);
    boxes_.Name()->setFocus();
}

void SMembers::Sort() {
    if (MemberCount(view()) < 2) return;
    SortMembers(state());
    FillList();
    Clear();
    dirty_.Set();
}

void SMembers::Print() { services().printMembers(this); }

void SMembers::Save() {
    if (SyndicateReadAnew(program(), this)) {
        Clear();
        return ShowAll();
    }
    const Hourglass hourglass;
    SaveSyndicate(state(), folder());
    dirty_.Clear();
    services().messages.Show(this, {.title = tr("Lottery Quillon"),
                                    .text = tr("  Syndicate member list saved...  "),
                                    .sign = Sign::Information});
}

void SMembers::Close() {
    if (dirty_.MayClose(services().messages, this, UnsavedWarning())) Unload();
}
