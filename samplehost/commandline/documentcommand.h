// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DOCUMENTCOMMAND_H
#define SAMPLEHOST_DOCUMENTCOMMAND_H

#include <QtCore/QString>

#include <optional>

class QCommandLineParser;

namespace SampleHost {

/** What a command line asks for with a PDF document. */
struct DocumentCommand
{
    /** Which pages are printed without a user. */
    enum class Pages {
        None, ///< Nothing is printed.
        Current,
        All,
        List
    };

    /** The document as it was given; empty without one. */
    QString file;
    Pages pages = Pages::None;
    /** The list as it was given, valid or not. */
    QString list;
    /** The 1-based current page, as it was given. */
    int page = 1;
    /** Whether pages are fitted to the paper; without a choice the panel's own stays. */
    std::optional<bool> fitToPage;
    bool rotate180 = false;
    bool formFillOnly = false;

    /** Whether pages are printed. */
    bool prints() const { return pages != Pages::None; }
};

/** Adds the options that are about documents. */
void addDocumentOptions(QCommandLineParser& parser);

/** Reads these options; what is wrong with them goes to problem unless something is there. */
DocumentCommand readDocumentCommand(const QCommandLineParser& parser, QString& problem);

} // namespace SampleHost

#endif
