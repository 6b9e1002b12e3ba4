// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>
#include <QPoint>

namespace kavenda {

// A label whose text casts a hard black shadow at an offset. Drawn twice by the label itself:
// a graphics effect would give every label an offscreen buffer of its own. The widget reaches
// past its text's frame by the offset, so the shadow is never clipped.
class ShadowedLabel : public QLabel {
    Q_OBJECT

public:
    ShadowedLabel(const QString& text, const QRect& frame, QPoint offset, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPoint offset_;
};

}  // namespace kavenda
