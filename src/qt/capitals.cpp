// SPDX-License-Identifier: MIT
#include "capitals.h"

#include <string>

#include "entry/keys.h"
#include "qt_text.h"

namespace vatro {

QValidator::State Capitals::validate(QString& text, int& caret) const {
    QString kept;
    int before = 0;
    for (int i = 0; i < text.size(); ++i) {
        const std::string one = FromQt(text.mid(i, 1));
        KeyCode key = UpperKey(static_cast<unsigned char>(one.empty() ? ' ' : one.front()));
        FilterKey(key, characters_);
        if (key == kNoKey) continue;
        kept += ToQt(std::string(1, static_cast<char>(static_cast<unsigned char>(key))));
        if (i < caret) ++before;
    }
    caret = before;
    text = kept;
    return Acceptable;
}

}  // namespace vatro
