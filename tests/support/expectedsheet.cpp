// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "support/expectedsheet.h"

#include <QtCore/QFile>

QString expectedSheet(const char* role)
{
    QFile file(QStringLiteral(EXPECTED_SHEETS "/%1.qss").arg(QLatin1String(role)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                          : QStringLiteral("no such sheet");
}
