// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_DEVICEPIPELINE_H
#define SAMPLEHOST_DEVICEPIPELINE_H

#include <qpdf/Pipeline.hh>

#include <QtCore/QtGlobal>

#include <functional>
#include <string>

class QIODevice;

namespace SampleHost {

/** Takes what qpdf writes, which comes word by word, to a device in larger parts. */
class DevicePipeline : public Pipeline
{
public:
    /** Calls afterPart, unless it is null, after each part. The device must outlive the pipeline.
     */
    DevicePipeline(QIODevice& device, std::function<void()> afterPart);

    /** Throws a std::exception when the device cannot be written, and what afterPart throws. */
    void write(unsigned char const* data, size_t length) override;
    void write(const std::string& text);
    void finish() override;

    /** The number of bytes that were written. */
    qint64 position() const { return m_position; }

private:
    QIODevice& m_device;
    std::function<void()> m_afterPart;
    std::string m_part;
    qint64 m_position = 0;
};

} // namespace SampleHost

#endif
