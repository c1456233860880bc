#include "sheets/plot_resolution.h"

#include <boost/lexical_cast.hpp>
#include <string>

#include "kvopt/platform/combo_box.h"
#include "kvopt/text.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr int kFirstProcessResolution = 16;
constexpr int kFirstMixtureResolution = 64;
constexpr int kLastOfferedResolution = 256;
constexpr int kLowestResolution = 16;
constexpr int kHighestResolution = 1024;

}  // namespace

void ShowResolution(CComboBox& combo, const ContourPageData::Arguments& options) {
    combo.ResetContent();
    for (int offered = options.mixtureMode ? kFirstMixtureResolution : kFirstProcessResolution;
         offered <= kLastOfferedResolution; offered *= 2) {
        combo.AddString(boost::lexical_cast<std::wstring>(offered));
    }
    const int present = options.mixtureMode ? options.mixtureResolution : options.resolution;
    if (present != -1) {
        combo.SetText(boost::lexical_cast<std::wstring>(present));
    }
}

const PlainText* TakeResolution(const CComboBox& combo, const PlainText& tooHigh,
                                ContourPageData::Arguments& options) {
    int resolution = 0;
    if (!KvString::ToInt(combo.GetText(), resolution)) {
        return &texts::kResolutionNotNumber;
    }
    if (resolution < kLowestResolution) {
        return &texts::kResolutionTooLow;
    }
    if (resolution > kHighestResolution) {
        return &tooHigh;
    }
    (options.mixtureMode ? options.mixtureResolution : options.resolution) = resolution;
    return nullptr;
}

}  // namespace kvopt
