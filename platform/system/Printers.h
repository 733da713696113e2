// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <functional>

#include "printing/page.h"

class QPainter;
class QWidget;

/// A picture that fills a sheet as far as its proportions allow.
struct PictureJob {
    QString title;  ///< As the printer's queue shows it.
    PrintOptions options;
    QSizeF size;  ///< In any unit: only its proportions count.
    std::function<void(QPainter&, const QRectF&)> paint;  ///< Paints it into a rectangle.
};

/// The printers and the one of them that is the current one. The last is always our own, which
/// shows what would be printed and saves it as a PDF.
class Printers {
  public:
    virtual ~Printers() = default;

    /// The names of all printers as they are at this moment, our own last. Asking the system takes
    /// a while.
    virtual QStringList Names() = 0;

    /// The name of the current printer: at first the system's default one, ours where it has none.
    virtual QString Current() = 0;

    /// Makes the printer of that name the current one.
    virtual void Choose(const QString& name) = 0;

    /// Prints a document on the current printer: at once, without a question, or on our own in a
    /// window over `parent`. A printer that refuses is a `Failure` that names it and the reason. A
    /// document without sheets prints nothing.
    virtual void Print(QWidget* parent, const PrintJob& job) = 0;
    virtual void PrintPicture(QWidget* parent, const PictureJob& job) = 0;

    /// How far a printer is off, as its user has measured it; kept from run to run.
    virtual PageCorrection CorrectionOf(const QString& name) = 0;
    virtual void SetCorrection(const QString& name, const PageCorrection& correction) = 0;
};
