// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/translationrecorder.h"

#include <QtCore/QCoreApplication>

TranslationRecorder::TranslationRecorder(const QString& context) : m_context(context)
{
    QCoreApplication::installTranslator(this);
}

TranslationRecorder::~TranslationRecorder()
{
    QCoreApplication::removeTranslator(this);
}

QString TranslationRecorder::marked(const QString& context, const QString& text,
                                    const QString& comment)
{
    // Not with QString::arg(), which would replace place markers in the text.
    QString result = QStringLiteral("\u00ab") + context + QLatin1Char('|') + text;
    if (!comment.isEmpty())
        result += QLatin1Char('|') + comment;
    return result + QStringLiteral("\u00bb");
}

QString TranslationRecorder::translate(const char* context, const char* text, const char* comment,
                                       int) const
{
    const TranslationKey key{QString::fromUtf8(context), QString::fromUtf8(text),
                             QString::fromUtf8(comment)};
    if (key.context != m_context)
        return QString();
    m_keys.append(key);
    return marked(key.context, key.text, key.comment);
}
