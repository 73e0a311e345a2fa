// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONRECORDER_H
#define TRANSLATIONRECORDER_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QTranslator>

/** One look-up of a text: the three parts of its translation key. */
struct TranslationKey
{
    QString context;
    QString text;
    QString comment;

    friend bool operator==(const TranslationKey& a, const TranslationKey& b)
    {
        return a.context == b.context && a.text == b.text && a.comment == b.comment;
    }
};

/**
 * A translator that answers every text of one context with marked(), so that a text which a widget
 * shows tells its own translation key, and that keeps the keys in the order in which they were
 * asked for. Installed while it lives.
 */
class TranslationRecorder : public QTranslator
{
public:
    /** Answers texts of @p context only, so that Qt's own texts stay as they are. */
    explicit TranslationRecorder(const QString& context);
    ~TranslationRecorder() override;

    /** The answer to a look-up: "«context|text|comment»", or "«context|text»" without a comment. */
    static QString marked(const QString& context, const QString& text, const QString& comment);

    /** The keys asked for so far, oldest first. */
    QList<TranslationKey> keys() const { return m_keys; }

    QString translate(const char* context, const char* text, const char* comment,
                      int n) const override;
    bool isEmpty() const override { return false; }

private:
    const QString m_context;
    mutable QList<TranslationKey> m_keys;
};

#endif
