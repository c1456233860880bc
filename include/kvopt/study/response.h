#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

/// What every variable of a study answers: its name and its units. A record that the host fills.
class KVOPT_EXPORT ResponseClass {
public:
    ResponseClass() = default;
    explicit ResponseClass(std::string variableName, std::string variableUnits = {},
                           std::string variableAbbreviation = {});
    virtual ~ResponseClass();
    ResponseClass(const ResponseClass&) = default;
    ResponseClass& operator=(const ResponseClass&) = default;

    const std::string& GetName() const { return name; }
    const std::string& GetUnits() const { return units; }

    std::string name;  ///< its identity in everything that is stored
    std::string units;
    std::string abbreviation;  ///< the short name that model terms are made of
};

/// A response with what is asked of it: its kind and its limits. Does not own the variable that it
/// points to. A host that computes the answers derives from it; one that has plain responses fills
/// the record.
class KVOPT_EXPORT ResponseEx {
public:
    enum EResponseType : int {
        Regular = 0,   ///< a measured response
        Derived = 1,   ///< computed from other responses
        Combined = 2,  ///< a desirability of several responses
        External = 3,  ///< predicted by a model from outside the study
        Any = 4,       ///< in questions alone: of whatever kind
    };

    explicit ResponseEx(ResponseClass* responseClass);
    virtual ~ResponseEx();
    ResponseEx(const ResponseEx&) = delete;
    ResponseEx& operator=(const ResponseEx&) = delete;

    virtual EResponseType GetType() const;
    /// The limits of the response, kNotSet for one that it does not have.
    virtual double GetLowLimit() const;
    virtual double GetHighLimit() const;
    virtual double GetTarget() const;

    /// The name of the variable; empty without one.
    const std::string& GetName() const;

    ResponseClass* response;  ///< the variable; not owned
    EResponseType type = Regular;
    double lowLimit = kNotSet;
    double highLimit = kNotSet;
    double target = kNotSet;
};

}  // namespace kvopt
