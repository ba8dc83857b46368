// SPDX-License-Identifier: MIT
//
// The printer of a scenario: it keeps what was printed, as the lines that the command `pages` tells.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "page.h"
#include "scenario.h"

namespace vatro {

class ScenePages : public PageDevice {
public:
    /// The finished jobs since the last call.
    Output TakeJobs();

    double Width() const override;
    double Height() const override;
    double TextWidth(std::string_view text, const Font& font) const override;
    double TextHeight(const Font& font) const override;
    void BeginJob() override;
    void Place(double x, double y, const Font& font, std::string_view text) override;
    void NextPage() override;
    void EndJob() override;

private:
    void BeginPage();

    Output jobs_;
    Output job_;
    /// Of the job being printed; 0 as long as nothing stands on its first page.
    int page_ = 0;
};

}  // namespace vatro
