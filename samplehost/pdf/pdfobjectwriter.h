// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_PDFOBJECTWRITER_H
#define SAMPLEHOST_PDFOBJECTWRITER_H

#include <qpdf/QPDFObjectHandle.hh>

#include <QtGui/QTransform>

#include <map>
#include <string>
#include <utility>
#include <vector>

class QIODevice;

namespace SampleHost {

/** The six numbers of a matrix, as the operator cm takes them. */
std::string matrixText(const QTransform& transform);

/**
 * Writes a PDF file object by object, each to the device at once, so that a document of any length
 * needs little memory. Objects of another document come along on being referred to, each once.
 * Errors of the device are for its owner to ask for.
 */
class PdfObjectWriter
{
public:
    /** Writes the header. The device must be open and outlive the writer. */
    explicit PdfObjectWriter(QIODevice& device);

    /** A number for an object that is written later. */
    int reserve();

    /** The text that refers to an object. */
    static std::string reference(int number) { return std::to_string(number) + " 0 R"; }

    /**
     * The text of another document's object: a reference to its copy when it is an indirect one.
     * Throws a std::exception when the object cannot be read.
     */
    std::string textOf(QPDFObjectHandle object);

    /** Writes an object from its text under a reserved number. */
    void write(int number, const std::string& text);

    /** Writes a stream and returns its number; entries is the text of its dictionary's entries. */
    int writeStream(const std::string& entries, const std::string& data);

    /** Writes a stream with the entries of a dictionary and returns its number. */
    int writeStream(QPDFObjectHandle dictionary, const std::string& data);

    /** Copies what was referred to and is not yet written. Throws like textOf(). */
    void copyReferred();

    /** Writes the cross-reference table and ends the file. */
    void finish(int catalog, int info);

private:
    int numberOf(const QPDFObjectHandle& object);
    std::string entriesOf(QPDFObjectHandle dictionary, bool isStream);
    void copy(int number, QPDFObjectHandle object);
    void begin(int number);
    void put(const std::string& text);

    QIODevice& m_device;
    qint64 m_position = 0;
    // Where each object begins; 0 for one that is not written.
    std::vector<qint64> m_offsets = {0};
    std::map<QPDFObjGen, int> m_numbers;
    std::vector<std::pair<int, QPDFObjectHandle>> m_referred;
};

} // namespace SampleHost

#endif
