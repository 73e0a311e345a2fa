// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef TRANSLATIONRECORDER_H
#define TRANSLATIONRECORDER_H

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QTranslator>

/** The key under which a translation is looked up. */
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
 * A translator that returns marked() for every text of one context, so that a text shown by a
 * widget contains its own translation key. It also records the keys that are looked up.
 *
 * The constructor installs the translator, the destructor removes it.
 */
class TranslationRecorder : public QTranslator
{
public:
    /** Creates a translator for @p context only, so that Qt's own texts are not changed. */
    explicit TranslationRecorder(const QString& context);
    ~TranslationRecorder() override;

    /** Returns "«context|text|comment»", or "«context|text»" if @p comment is empty. */
    static QString marked(const QString& context, const QString& text, const QString& comment);

    /** Returns the keys looked up so far, oldest first. */
    QList<TranslationKey> keys() const { return m_keys; }

    QString translate(const char* context, const char* text, const char* comment,
                      int n) const override;
    bool isEmpty() const override { return false; }

private:
    const QString m_context;
    mutable QList<TranslationKey> m_keys;
};

#endif
