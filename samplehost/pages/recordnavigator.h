// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_RECORDNAVIGATOR_H
#define SAMPLEHOST_RECORDNAVIGATOR_H

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

namespace SampleHost {

/** Buttons to the first, previous, next and last record or page, and the current one's number. */
class RecordNavigator : public QWidget
{
    Q_OBJECT

public:
    /** What the buttons step through, for their tool tips. */
    enum class Items { Records, Pages };

    /** A navigator without records, disabled. */
    explicit RecordNavigator(Items items = Items::Records, QWidget* parent = nullptr);

    /**
     * Sets the number of records. The current one becomes the nearest that exists, which emits
     * currentIndexChanged() if it changes. Without records the navigator is disabled.
     */
    void setCount(int count);

    /** The number of records. */
    int count() const { return m_count; }

    /** The current record, 0-based; 0 without records. */
    int currentIndex() const { return m_index; }

public Q_SLOTS:
    /** Makes a record current. An index that is out of range is clamped. */
    void setCurrentIndex(int index);

Q_SIGNALS:
    /** The current record changed, by the user or the program; 0-based. */
    void currentIndexChanged(int index);

private:
    QToolButton* addButton(const QString& name, QStyle::StandardPixmap icon,
                           const QString& toolTip);
    void createWidgets(Items items);
    void showPosition();

    QToolButton* m_firstButton = nullptr;
    QToolButton* m_previousButton = nullptr;
    QToolButton* m_nextButton = nullptr;
    QToolButton* m_lastButton = nullptr;
    QSpinBox* m_numberBox = nullptr;
    QLabel* m_countLabel = nullptr;
    int m_count = 0;
    int m_index = 0;
};

} // namespace SampleHost

#endif
