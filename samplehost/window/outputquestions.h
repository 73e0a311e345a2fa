// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEHOST_OUTPUTQUESTIONS_H
#define SAMPLEHOST_OUTPUTQUESTIONS_H

#include <QtCore/QString>

#include <functional>

class QWidget;

namespace SampleHost {

class HostSettings;
class JobController;

/**
 * Asks whether the request of a controller may replace a file, without waiting for the user, who
 * may also choose another file. The arguments must outlive the parent.
 */
void askToReplace(QWidget* parent, const QString& path, JobController& controller,
                  HostSettings& settings);

/**
 * Lets the user choose the PDF file of the settings, without waiting. The dialog itself asks before
 * a file is replaced. One of the functions is called in the end, unless parent is destroyed before.
 */
void choosePdfFile(QWidget* parent, HostSettings& settings, const std::function<void()>& chosen,
                   const std::function<void()>& cancelled);

} // namespace SampleHost

#endif
