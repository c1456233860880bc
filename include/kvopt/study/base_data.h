#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/label_types.h"

namespace kvopt {

class Investigation;

/// A table of columns that a scatter plot can show. Columns count from 1.
class KVOPT_EXPORT BaseData {
public:
    virtual ~BaseData();

    virtual int GetNumColumns() const = 0;
    /// The name of a column; empty outside.
    virtual std::string GetColumn(int index) const = 0;
    virtual bool HasColumn(const std::string& name) const;
    /// Whether a column holds a limit of a response and no data of its own.
    virtual bool IsLimit(int index) const;
    /// Never null.
    virtual std::shared_ptr<BaseLabelTitles> GetLabelTitles() const;
};

/// The worksheet of a study: its factors, then its responses. Without an investigation it is empty.
class KVOPT_EXPORT WorksheetData : public BaseData {
public:
    explicit WorksheetData(const Investigation* investigation);

    int GetNumColumns() const override;
    std::string GetColumn(int index) const override;
    /// The label titles of the study.
    std::shared_ptr<BaseLabelTitles> GetLabelTitles() const override;

private:
    std::vector<std::string> Columns() const;

    const Investigation* investigation_;
};

}  // namespace kvopt
