// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_CATALOGPAGE_H
#define SAMPLEHOST_CATALOGPAGE_H

#include "samplehost/designs/catalogdesign.h"
#include "samplehost/pages/hostpage.h"
#include "samplehost/printing/printcontroller.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;

class QuickPrintWidget;

namespace SampleHost {

class HostSettings;
class LabelView;
class PreviewCanvas;

/** The page of catalogue items: ready-made signs, printed in a size that the user chooses. */
class CatalogPage : public HostPage
{
    Q_OBJECT

public:
    /** A page that prints to the printer in the settings. */
    explicit CatalogPage(const HostSettings& settings, QWidget* parent = nullptr);

    QuickPrintWidget& panel() const { return *m_panel; }
    PrintController& controller() const override { return *m_controller; }
    const CatalogDesign& design() const { return m_design; }

    /** Selects an item, 0-based; an index without an item changes nothing. */
    void setCurrentItem(int index);

    /** The message about the size that is shown; empty if there is none. */
    QString message() const;

    PageControls controls() const override;

Q_SIGNALS:
    /** The user asked for a size in which the item cannot be printed; message() says why. */
    void sizeRefused(const QString& problem);
    /** message() became empty. */
    void messageCleared();
    /** The user wants to edit an item in its current size, in millimetres. */
    void editorRequested(const SampleHost::CatalogItem& item, const QSizeF& sizeMm);

private:
    QWidget* createContents();
    QWidget* createSizeRow();
    void connectPanel();
    void selectItem(int index);
    void applyStock(bool fixedSize);
    void resizeItem(const QSizeF& canvasSize);
    void restoreSize();
    void showItem();
    void showPreview();
    void showSize();
    void showPrinter();
    void showPendingSize();
    void setMessage(const QString& message);
    QSizeF shownSize() const;

    CatalogDesign m_design;
    const HostSettings& m_settings;
    QuickPrintWidget* m_panel = nullptr;
    PreviewCanvas* m_canvas = nullptr;
    PrintController* m_controller = nullptr;
    LabelView* m_view = nullptr;
    QListWidget* m_items = nullptr;
    QCheckBox* m_fixedSizeCheck = nullptr;
    QPushButton* m_listedSizeButton = nullptr;
    QLabel* m_sizeLabel = nullptr;
    QLabel* m_message = nullptr;
};

} // namespace SampleHost

#endif
