// SPDX-License-Identifier: MIT
//
// The whole contest on one web page, headed as preliminary: "vatro", the year and ".htm" in the log directory. Nothing from the
// logs is escaped. Tags that are closed twice, or never, and the anchor "Top" beside links to "#top" are meant so.
#pragma once

#include "papers/logs.h"

namespace vatro {

/// Makes the page. A file that cannot be created is a failure.
void DanHtml();

/// The section of one log. Without its file it is empty, and the links still find it.
void DanHtm(const LogId& log);
/// Anchor, heading and the columns' names.
void DanHtmHoved(const LogId& log);
/// Every line of the open log, notes too, and its sums.
void DanHtmKrop();
/// The summary. In the list of operators, which is not sorted, the first one lacks its first letter: meant so.
void DanHtmSummary();

}  // namespace vatro
