// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/print/listproblem.h"

#include <printpanels/recordlist.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QStringTokenizer>

#include <limits>

namespace SampleHost {

namespace {

class ListProblem
{
    Q_DECLARE_TR_FUNCTIONS(SampleHost::ListProblem)
};

/** The texts for what the numbers stand for. */
struct Texts
{
    const char* nothing;
    const char* notNumber;
    const char* notRange;
    const char* missing;
    const char* notOnly;
    const char* none;
    const char* beyond;
};

constexpr Texts recordTexts{
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "There are no records."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "\"%1\" is not a record number."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "\"%1\" is not a range of records."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "a record number is missing beside a comma."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "The list \"%1\" does not name the only record:"),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "The list \"%1\" names none of the %2 records:"),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "there is no record %1."),
};

constexpr Texts pageTexts{
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "There are no pages."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "\"%1\" is not a page number."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "\"%1\" is not a range of pages."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "a page number is missing beside a comma."),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "The list \"%1\" does not name the only page:"),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "The list \"%1\" names none of the %2 pages:"),
    QT_TRANSLATE_NOOP("SampleHost::ListProblem", "there is no page %1."),
};

constexpr QChar itemSeparator = u',';
constexpr QChar rangeSeparator = u'-';

bool isReadable(QStringView item)
{
    return RecordList::expand(item, std::numeric_limits<int>::max()).has_value();
}

QString itemProblem(QStringView item, const Texts& texts)
{
    if (item.isEmpty()) {
        return ListProblem::tr(texts.missing);
    }
    return ListProblem::tr(item.contains(rangeSeparator) ? texts.notRange : texts.notNumber)
        .arg(item);
}

/** What is wrong with an item that can be read but names nothing. */
QString rangeProblem(QStringView item, int count, const Texts& texts)
{
    const qsizetype hyphen = item.indexOf(rangeSeparator);
    const QStringView first = hyphen < 0 ? item : item.first(hyphen);
    if (first.toInt() > count) {
        return ListProblem::tr(texts.beyond).arg(first) + QLatin1Char(' ') +
               (count == 1 ? ListProblem::tr("Write 1.")
                           : ListProblem::tr("Write numbers from 1 to %1.").arg(count));
    }
    return ListProblem::tr("\"%1\" runs backwards. Write %2.")
        .arg(item, item.sliced(hyphen + 1).toString() + rangeSeparator + first.toString());
}

QString reasonText(const QString& list, int count, const Texts& texts)
{
    QStringView nothing;
    for (QStringView item : QStringTokenizer(list, itemSeparator, Qt::KeepEmptyParts)) {
        if (!isReadable(item)) {
            return ListProblem::tr("The list \"%1\" cannot be read:").arg(list) + QLatin1Char(' ') +
                   itemProblem(item, texts) + QLatin1Char(' ') +
                   ListProblem::tr("Write numbers and ranges such as 1,4-5.");
        }
        nothing = nothing.isEmpty() ? item : nothing;
    }
    const QString head = count == 1 ? ListProblem::tr(texts.notOnly).arg(list)
                                    : ListProblem::tr(texts.none).arg(list, QString::number(count));
    return head + QLatin1Char(' ') + rangeProblem(nothing, count, texts);
}

} // namespace

QString listProblem(const QString& list, int count, ListItems items)
{
    const Texts& texts = items == ListItems::Records ? recordTexts : pageTexts;
    const auto ranges = RecordList::expand(list, count);
    if (ranges && !ranges->isEmpty()) {
        return QString();
    }
    const QString reason =
        count < 1 ? ListProblem::tr(texts.nothing) : reasonText(list, count, texts);
    return reason + QLatin1Char(' ') + ListProblem::tr("Nothing is printed.");
}

} // namespace SampleHost
