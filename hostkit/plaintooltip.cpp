#include "plaintooltip.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QWidget>

QString HostKit::plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

void HostKit::showPlainToolTip(QWidget* widget, QHelpEvent* event)
{
    const QString text = widget->toolTip();
    if (text.isEmpty()) {
        event->ignore();
        return;
    }
    QToolTip::showText(event->globalPos(), plainToolTip(text), widget, QRect(),
                       widget->toolTipDuration());
}
