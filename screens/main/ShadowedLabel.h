// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>
#include <QPoint>

#include <memory>

class QTextLayout;

namespace kavenda {

// A label whose text casts a hard black shadow at an offset. Drawn twice by the label itself:
// a graphics effect would give every label an offscreen buffer of its own. The widget reaches
// past its text's frame by the offset, so the shadow is never clipped. A text longer than the
// frame ends in "…" on the screen; the label's text, which a screen reader reads, stays whole.
class ShadowedLabel : public QLabel {
    Q_OBJECT

public:
    ShadowedLabel(const QString& text, const QRect& frame, QPoint offset, QWidget* parent = nullptr);
    ~ShadowedLabel() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QTextLayout& layout();

    QPoint offset_;
    // Shaped once for all paints; made again when the text or the font changes.
    std::unique_ptr<QTextLayout> layout_;
    QString laidOut_;
};

}  // namespace kavenda
