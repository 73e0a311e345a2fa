// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef VARIANT_H
#define VARIANT_H

#include <QtCore/QString>
#include <QtCore/QTranslator>

#include <memory>

/**
 * One of the applications that the pictures are made in: left to right, right to left, dark, German
 * or in the language that is longer than English; each at one or two pixels for a unit of length.
 */
class Variant
{
public:
    /** The variant that GOLDEN_VARIANT names, such as "rtl" or "rtl@2x"; "ltr" if it is not set. */
    Variant();

    /** Whether there is such a variant. */
    bool isValid() const;
    /** Also the folder of its pictures. */
    QString name() const { return m_name; }
    int ratio() const { return m_ratio; }

    /** Sets what Qt reads when the application starts. */
    void prepareEnvironment() const;
    /** Makes the application the variant's, until this object is gone. Returns an error, or
     * nothing. */
    QString apply();

    /** The names of all variants. */
    static QStringList all();

private:
    QString applyLanguage();

    QString m_name;
    QString m_kind;
    int m_ratio = 1;
    std::unique_ptr<QTranslator> m_translator;
};

#endif
