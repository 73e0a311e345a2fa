// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/paneldocument.h"

#include "states/panelstate.h"

#include <QtCore/QRegularExpression>

using Gallery::PanelState;

namespace {

const QRegularExpression begin(QStringLiteral("^<!-- states of (\\w+) -->$"),
                               QRegularExpression::MultilineOption);
const QString end = QStringLiteral("<!-- end of states -->");
const QRegularExpression picture(QStringLiteral("!\\[[^]]*\\]\\(([^)]*)\\)"));

QStringList captures(const QRegularExpression& expression, const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QString describe(const PanelState& state)
{
    return QStringLiteral("| ![%1](../tests/golden/pictures/ltr/%2.png) | **%1**<br>%3 |\n")
        .arg(QString::fromUtf8(state.title), QLatin1String(state.name),
             QString::fromUtf8(state.description));
}

QString describeAll(const QString& panel, const QList<PanelState>& states)
{
    QString text = QStringLiteral("| state | what it shows |\n|---|---|\n");
    for (const PanelState& state : states) {
        if (QLatin1String(state.panel) == panel)
            text += describe(state);
    }
    return text;
}

} // namespace

QString withStates(const QString& document, const QList<PanelState>& states)
{
    QString result;
    qsizetype position = 0;
    for (QRegularExpressionMatch match = begin.match(document); match.hasMatch();
         match = begin.match(document, position)) {
        result += document.mid(position, match.capturedEnd() - position) + QStringLiteral("\n\n") +
                  describeAll(match.captured(1), states) + u'\n';
        position = document.indexOf(end, match.capturedEnd());
        if (position < 0)
            return result + end + u'\n';
    }
    return result + document.mid(position);
}

QStringList documentedPanels(const QString& document)
{
    return captures(begin, document);
}

QStringList shownPictures(const QString& document)
{
    return captures(picture, document);
}
