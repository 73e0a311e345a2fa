// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "golden/variant.h"

#include "states/darkpalette.h"
#include "support/pseudotranslator.h"

#include <QtCore/QLocale>
#include <QtGui/QFontInfo>
#include <QtWidgets/QApplication>

namespace {

const QStringList kinds = {QStringLiteral("ltr"), QStringLiteral("rtl"), QStringLiteral("dark"),
                           QStringLiteral("german"), QStringLiteral("pseudo")};
const QString twice = QStringLiteral("@2x");

// Nine points.
constexpr int fontPixels = 12;

} // namespace

Variant::Variant() : m_name(qEnvironmentVariable("GOLDEN_VARIANT", QStringLiteral("ltr")))
{
    m_kind = m_name;
    if (m_kind.endsWith(twice)) {
        m_kind.chop(twice.size());
        m_ratio = 2;
    }
}

bool Variant::isValid() const
{
    return kinds.contains(m_kind);
}

QStringList Variant::all()
{
    QStringList names;
    for (const QString& kind : kinds)
        names << kind << kind + twice;
    return names;
}

void Variant::prepareEnvironment() const
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(m_ratio));
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", GOLDEN_FONTS_CONF);
    for (const char* name : {"QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QT_SCREEN_SCALE_FACTORS",
                             "QT_ENABLE_HIGHDPI_SCALING", "QT_SCALE_FACTOR_ROUNDING_POLICY"})
        qunsetenv(name);
    QApplication::setDesktopSettingsAware(false);
}

QString Variant::apply()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(fontPixels);
    if (!QFontInfo(font).exactMatch())
        return QStringLiteral("There is no DejaVu Sans: install fonts-dejavu-core");
    QApplication::setFont(font);
    if (m_kind == QStringLiteral("dark"))
        QApplication::setPalette(Gallery::darkPalette());
    if (m_kind == QStringLiteral("rtl"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    return applyLanguage();
}

QString Variant::applyLanguage()
{
    QLocale::setDefault(QLocale::c());
    if (m_kind == QStringLiteral("pseudo")) {
        m_translator = std::make_unique<PseudoTranslator>();
    } else if (m_kind == QStringLiteral("german")) {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        m_translator = std::make_unique<QTranslator>();
        if (!m_translator->load(QStringLiteral(GOLDEN_GERMAN)))
            return QStringLiteral("There is no " GOLDEN_GERMAN);
    }
    if (m_translator)
        QApplication::installTranslator(m_translator.get());
    return QString();
}
