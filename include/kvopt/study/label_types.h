#pragma once

#include <memory>
#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// What a point of a plot is labelled with, and its texts.
class KVOPT_EXPORT LabelTypes {
public:
    LabelTypes() = delete;

    enum PlotLabelType : int {
        None = 0,
        ExperimentNumber = 1,
        ExperimentName = 2,
        RunOrder = 3,
        PredictionNumber = 4,
    };

    /// The type of a stored text or of a title; None for any other text, the null text included.
    static PlotLabelType GetLabelType(const char* text);
    /// The title that the user sees when `title` is true, else the text that is stored. A number
    /// that is no label type gives the texts of None.
    static std::string GetString(PlotLabelType type, bool title);
    /// The title, wide.
    static std::wstring GetWString(PlotLabelType type);
};

/// The titles of the labels that a worksheet offers, in the order of its lists.
class KVOPT_EXPORT BaseLabelTitles {
public:
    virtual ~BaseLabelTitles();

    virtual int NumNameTitles() const = 0;
    /// The title at a zero-based index; empty outside.
    virtual std::string GetName(int index) const = 0;
};

/// The titles of every worksheet: experiment number, experiment name, run order.
class KVOPT_EXPORT StandardLabelTitles : public BaseLabelTitles {
public:
    int NumNameTitles() const override;
    std::string GetName(int index) const override;
};

}  // namespace kvopt
