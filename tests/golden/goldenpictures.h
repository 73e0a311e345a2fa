// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef GOLDENPICTURES_H
#define GOLDENPICTURES_H

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtGui/QImage>

/**
 * The pictures of one variant, in a folder.
 *
 * Most states differ from another one in a strip only. To save space, a file leaves out the lines
 * at the top and at the bottom that are those of an earlier picture, and names that picture. The
 * files of the documentation are whole.
 */
class GoldenPictures
{
public:
    enum Kind { Whole, Strips };

    GoldenPictures(const QString& folder, Kind kind) : m_folder(folder), m_kind(kind) {}

    QString file(const QString& name) const;
    QStringList names() const;

    /** The whole picture of this name; null if there is none, or none that can be put together. */
    QImage load(const QString& name) const;

    /**
     * Saves a picture of @p group, if it is not what is there. Pictures have to be renewed all, in
     * the same order each time.
     */
    bool renew(const QString& group, const QString& name, const QImage& picture);
    bool remove(const QString& name) const;

private:
    struct Earlier
    {
        QString group;
        QString name;
        QImage picture;
    };

    QImage stripOf(const QString& group, const QImage& picture) const;
    QImage load(const QString& name, int depth) const;

    QString m_folder;
    Kind m_kind;
    QList<Earlier> m_earlier;
};

#endif
