// SPDX-License-Identifier: MIT
#include "line_reader.h"

#include <algorithm>
#include <cstring>

namespace vatro {

namespace {

constexpr std::size_t kBufferSize = 65'536;

const char* Find(const char* from, const char* end, char byte) {
    const void* found = std::memchr(from, byte, static_cast<std::size_t>(end - from));
    return found == nullptr ? end : static_cast<const char*>(found);
}

}  // namespace

void LineReader::Start(SystemFile& file) {
    file_ = &file;
    buffer_.resize(kBufferSize);
    next_ = end_ = lineFeed_ = carriageReturn_ = buffer_.data();
    skipLineFeed_ = false;
}

bool LineReader::AtEnd() {
    return next_ == end_ && !Fill();
}

std::string LineReader::Next() {
    std::string line;
    while (!AtEnd()) {
        const char* const lineEnd = FindLineEnd();
        line.append(next_, lineEnd);
        next_ = lineEnd;
        if (lineEnd == end_) continue;
        ++next_;
        if (*lineEnd == '\r') {
            if (next_ == end_)
                skipLineFeed_ = true;
            else if (*next_ == '\n')
                ++next_;
        }
        break;
    }
    return line;
}

const char* LineReader::FindLineEnd() {
    if (lineFeed_ < next_) lineFeed_ = Find(next_, end_, '\n');
    if (carriageReturn_ < next_) carriageReturn_ = Find(next_, end_, '\r');
    return std::min(lineFeed_, carriageReturn_);
}

bool LineReader::Fill() {
    for (;;) {
        const std::size_t count = file_->Read(buffer_);
        if (count == 0) return false;
        next_ = buffer_.data();
        end_ = next_ + count;
        if (skipLineFeed_ && *next_ == '\n') ++next_;
        skipLineFeed_ = false;
        lineFeed_ = Find(next_, end_, '\n');
        carriageReturn_ = Find(next_, end_, '\r');
        if (next_ != end_) return true;
    }
}

}  // namespace vatro
