// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

/// A step that the welcome offers: a picture, a caption in bold and a line that says more, all in
/// the size of the font. Enter, Space and a click take the step; the arrow keys go to the next one.
class WelcomeLink final : public QAbstractButton {
    Q_OBJECT
  public:
    WelcomeLink(const QString& picture, QWidget* parent);

    void SetWords(const QString& caption, const QString& description);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QFont CaptionFont() const;
    int PictureEdge() const;
    QSize SizeFor(int wordsWidth) const;

    QString caption_;
    QString description_;
};
