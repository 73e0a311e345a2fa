// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include <printpanels/quickprintwidget.h>

#include "foundation/hostkit.h"
#include "foundation/stylesheets.h"
#include "foundation/widgets/palettekeeper.h"
#include "preview/previewview.h"
#include "quickprint/quickprintwidget_p.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace {

constexpr int shownLabel = -1;
constexpr double notANumber = -1.0;

double numberIn(const JxLineEdit* edit)
{
    bool converts = false;
    const double number = edit->text().toDouble(&converts);
    return converts ? number : notANumber;
}

} // namespace

// The base gets no parent on purpose: a panel appears where the host's layout puts it, and nowhere
// before.
QuickPrintWidget::QuickPrintWidget(bool quickPrint, QWidget* parent)
    : PrintWidgetInterface(parent != nullptr, nullptr),
      d(std::make_unique<PrintPanels::QuickPrintWidgetPrivate>(this, quickPrint))
{
    setObjectName(QStringLiteral("QuickPrintWidget"));
    setStyleSheet(StyleSheets::panel());
    new PrintPanels::PaletteKeeper(this);
    d->createWidgetLayout();
}

// Children emit while they are destroyed, such as an edit that loses the focus. A handler would
// then call a panel that is partly destroyed.
QuickPrintWidget::~QuickPrintWidget()
{
    blockSignals(true);
}

void QuickPrintWidget::setModule(const JxModuleInfo::JxModuleTypes& module)
{
    d->resizeFrame->setVisible(module == JxModuleInfo::JxCatalog ||
                               module == JxModuleInfo::JavaScript);
}

void QuickPrintWidget::disablePrintButtons()
{
    d->printButton->setEnabled(false);
}

void QuickPrintWidget::disableAllButtons()
{
    d->openInEditorButton->setEnabled(false);
    d->printButton->setEnabled(false);
}

void QuickPrintWidget::enablePrintButtons()
{
    d->printButton->setEnabled(true);
}

void QuickPrintWidget::enableAllButtons()
{
    d->openInEditorButton->setEnabled(true);
    d->printButton->setEnabled(true);
}

void QuickPrintWidget::setNumberOfCopies(int copies)
{
    d->copiesSpinBox->setValue(copies);
}

int QuickPrintWidget::getNumberOfCopies()
{
    return d->copiesSpinBox->value();
}

void QuickPrintWidget::setCurrentPrinterName(const QString& name)
{
    d->printerNameLabel->setText(name);
}

void QuickPrintWidget::updateQuickPrint(const QImage& image)
{
    d->preview->setImage(image);
}

void QuickPrintWidget::setCanvasSize(const QSizeF& size)
{
    d->lengthEdit->setText(QString::number(size.width(), 'f', 2));
    d->widthEdit->setText(QString::number(size.height(), 'f', 2));
}

QSizeF QuickPrintWidget::getCanvasSize() const
{
    return QSizeF(numberIn(d->lengthEdit), numberIn(d->widthEdit));
}

void QuickPrintWidget::updateCurrentRangeIndex(int) {}

void QuickPrintWidget::printSlot()
{
    Q_EMIT widgetPrintSignal(shownLabel, shownLabel, QString());
}

void QuickPrintWidget::resizeSlot()
{
    Q_EMIT resizeSignal(getCanvasSize());
}
