// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_FLOWLAYOUT_H
#define SAMPLEHOST_FLOWLAYOUT_H

#include <QtWidgets/QLayout>

#include <memory>
#include <vector>

namespace SampleHost {

/** Places widgets side by side, in as many rows as the width requires. */
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /** An empty layout without margins. */
    FlowLayout(int columnSpacing, int rowSpacing, QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    /** The size of the largest widget. */
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    int arrange(const QRect& rect, bool place) const;

    int m_columnSpacing;
    int m_rowSpacing;
    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace SampleHost

#endif
