// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef MONKEY_MULTIPAGECHECKS_H
#define MONKEY_MULTIPAGECHECKS_H

#include <QtCore/QPointer>
#include <QtCore/QVariant>

#include <printpanels/multipageprintwidget.h>

#include <optional>

namespace Monkey {

/**
 * What has to be true of a MultiPagePrintWidget, alone or in its dialog. Every check answers what
 * is wrong, or an empty text.
 */
class MultiPageChecks
{
public:
    explicit MultiPageChecks(MultiPagePrintWidget* panel) : m_panel(panel) {}

    /** The host is about to make this call. */
    void aboutToCall(const QByteArray& name, const QVariantList& arguments);
    /** A signal arrived, by the host's call @p cause or, if that is empty, by the user. */
    QString received(const QByteArray& signal, const QVariantList& arguments,
                     const QByteArray& cause) const;
    QString check() const;

private:
    QString checkCopies() const;
    QString checkRequest(const QVariantList& arguments) const;
    int shownStartPage() const;
    bool isChecked(const char* button) const;

    QPointer<MultiPagePrintWidget> m_panel;
    int m_currentPage = 1;
    int m_pageCount = 99999;
};

} // namespace Monkey

#endif
