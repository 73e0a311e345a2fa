// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "samplehost/pdf/sheets/devicepipeline.h"

#include <QtCore/QIODevice>

#include <stdexcept>
#include <utility>

namespace SampleHost {

namespace {

constexpr std::size_t partSize = 64 * 1024;

} // namespace

DevicePipeline::DevicePipeline(QIODevice& device, std::function<void()> afterPart)
    : Pipeline("device", nullptr), m_device(device), m_afterPart(std::move(afterPart))
{
}

void DevicePipeline::write(unsigned char const* data, size_t length)
{
    m_part.append(reinterpret_cast<const char*>(data), length);
    m_position += qint64(length);
    if (m_part.size() >= partSize) {
        finish();
    }
}

void DevicePipeline::write(const std::string& text)
{
    write(reinterpret_cast<unsigned char const*>(text.data()), text.size());
}

void DevicePipeline::finish()
{
    const auto size = qint64(m_part.size());
    if (m_device.write(m_part.data(), size) != size) {
        throw std::runtime_error("the device cannot be written");
    }
    m_part.clear();
    if (m_afterPart) {
        m_afterPart();
    }
}

} // namespace SampleHost
