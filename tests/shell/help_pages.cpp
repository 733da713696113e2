// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/shell/help_pages.h"

#include <QFile>
#include <QImageReader>
#include <QXmlStreamReader>

#include "test_folders.h"

namespace {

/// Reads a page strictly, as XML.
class PageReader {
  public:
    explicit PageReader(const QString& name) : file_(SuppliedPath(name)) {
        if (!file_.open(QIODevice::ReadOnly)) page_.error = QStringLiteral("cannot be opened");
        xml_.setDevice(&file_);
    }

    HelpPage Read() {
        while (!xml_.atEnd()) {
            xml_.readNext();
            if (xml_.isStartElement()) Begin();
            if (xml_.isCharacters()) page_.text += xml_.text();
            if (xml_.isEndElement()) within_.removeLast();
        }
        if (xml_.hasError()) {
            page_.error =
                QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString());
        }
        return page_;
    }

  private:
    QString Attribute(const char* name) const {
        return xml_.attributes().value(QLatin1String(name)).toString();
    }

    void Begin() {
        const QString id = Attribute("id");
        if (!id.isEmpty()) page_.anchors << id;
        within_ << id;
        const QString link = Attribute("href");
        if (!link.isEmpty()) page_.links << link;
        if (xml_.name() == QLatin1String("source")) page_.pictures << Attribute("srcset");
        if (xml_.name() == QLatin1String("img")) BeginPicture();
        if (xml_.name() == QLatin1String("b")) BeginBold();
    }

    void BeginPicture() {
        const QString name = Attribute("src");
        page_.pictures << name;
        const QString size = Attribute("width") % QLatin1Char('x') % Attribute("height");
        const QSize real = QImageReader(SuppliedPath(name)).size();
        if (size != QStringLiteral("%1x%2").arg(real.width()).arg(real.height())) {
            page_.faults << QStringLiteral("%1 is told to be %2").arg(name, size);
        }
        if (Attribute("alt").trimmed().isEmpty())
            page_.faults << name % QStringLiteral(" says nothing");
    }

    /// Words of the program are told by their kind; reading one goes on to its end.
    void BeginBold() {
        const QString kind = Attribute("class");
        if (kind.isEmpty()) return;
        const QString text = xml_.readElementText().simplified();
        page_.text += text;
        if (kind == QLatin1String("ui")) page_.words.push_back({text, within_});
        if (kind == QLatin1String("menu")) page_.menuPaths << text;
    }

    QFile file_;
    QXmlStreamReader xml_;
    HelpPage page_;
    QStringList within_;
};

}  // namespace

QString SuppliedPath(const QString& file) {
    return QStringLiteral(SUPPLIED_DATA) % QLatin1Char('/') % file;
}

const std::map<QString, HelpPage>& HelpPagesRead() {
    static const std::map<QString, HelpPage> pages = [] {
        std::map<QString, HelpPage> read;
        for (const char* name : helpPages) {
            const QString page = QString::fromLatin1(name);
            read.emplace(page, PageReader(page).Read());
        }
        return read;
    }();
    return pages;
}
