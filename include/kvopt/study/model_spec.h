#pragma once

#include <memory>

#include "kvopt/export.h"

namespace kvopt {

class Investigation;
struct FMatrix;

/// The design that a study was made from.
class KVOPT_EXPORT NCDesign {
public:
    virtual ~NCDesign();

    /// The runs as they were generated; null when they are no longer known.
    virtual std::shared_ptr<const FMatrix> GetMatrix() const = 0;
};

/// What kinds of factors the models hold.
class KVOPT_EXPORT Factors {
public:
    explicit Factors(const Investigation* investigation);
    virtual ~Factors();

    /// At least one mixture factor, and no process factor.
    virtual bool IsMixtureOnly() const;
    /// At least one process factor, and no mixture factor.
    virtual bool IsProcessOnly() const;

private:
    const Investigation* investigation_;
};

/// What the models of a study are made for.
class KVOPT_EXPORT Objective {
public:
    explicit Objective(const Investigation* investigation);
    virtual ~Objective();

    /// Never null; owned by the objective.
    virtual const Factors* GetFactors() const;

private:
    Factors factors_;
};

/// What the models of a study are to be: objective, blocks, design. Without an override it
/// answers from the study's variables.
class KVOPT_EXPORT ModelSpec : public Objective {
public:
    explicit ModelSpec(const Investigation* investigation);
    ~ModelSpec() override;

    /// The number of blocks of a design, 0 being the one in use; 0 when it is not blocked.
    virtual int GetBlockCount(int design) const;
    /// Null when the study was not made from a design.
    virtual std::shared_ptr<NCDesign> GetDesign() const;

private:
    const Investigation* investigation_;
};

}  // namespace kvopt
