// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#ifndef HEAPINUSE_H
#define HEAPINUSE_H

#include <cstddef>

/** Bytes of the heap that are in use, counted by malloc or by a sanitizer that replaces it. */
std::size_t heapInUse();

#endif
