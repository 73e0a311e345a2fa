// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef PSEUDOTRANSLATOR_H
#define PSEUDOTRANSLATOR_H

#include <QtCore/QString>
#include <QtCore/QTranslator>

/**
 * A language that is 40 % longer than English, for tests whether every text is translated and has
 * room. It needs no file.
 *
 * Like any translator, it has effect from QCoreApplication::installTranslator() on, for the texts
 * that are looked up after that. Qt's own texts stay as they are.
 */
class PseudoTranslator : public QTranslator
{
public:
    /**
     * Returns @p text with accents and in brackets. Each line has 40 % more characters, which
     * repeat the line's own, so that it is as much wider. Place markers, mnemonics, line breaks and
     * the blanks around the text are kept.
     */
    static QString pseudo(const QString& text);

    QString translate(const char* context, const char* text, const char* comment,
                      int n) const override;
    bool isEmpty() const override { return false; }
};

#endif
