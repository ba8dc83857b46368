// SPDX-License-Identifier: MIT
#include "qt_text.h"

#include "codepage.h"

namespace vatro {

QString ToQt(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char byte : text) result.append(QChar(static_cast<char16_t>(CodePoint(byte))));
    return result;
}

std::string FromQt(const QString& text) {
    std::string result;
    for (const char32_t point : text.toUcs4()) {
        const int byte = CodePageByte(point);
        result.push_back(byte < 0 ? '?' : static_cast<char>(byte));
    }
    return result;
}

bool HasCodePageText(const QString& text) {
    return ToQt(FromQt(text)) == text;
}

std::string PastedText(const QString& text) {
    const std::string all = FromQt(text);
    return all.substr(0, all.find_first_of("\r\n"));
}

QString PlainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain.push_back(caption[i]);
    }
    return ToQt(plain);
}

}  // namespace vatro
