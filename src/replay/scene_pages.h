// SPDX-License-Identifier: MIT
//
// The printer of a scenario: it records what is printed, as the output lines of the command `pages`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "page.h"
#include "scenario.h"

namespace vatro {

class ScenePages : public PageDevice {
public:
    /// The jobs finished since the last call.
    OutputLines TakeJobs();

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

    OutputLines jobs_;
    OutputLines job_;
    /// The current page of the job being printed; 0 until something has been printed on its first page.
    int page_ = 0;
};

}  // namespace vatro
