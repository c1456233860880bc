#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/factor_class.h"

namespace kvopt {

/// A table of numbers by rows, here the constraints of a study.
struct FMatrix {
    int rows = 0;
    int columns = 0;
    std::vector<float> values;  ///< row by row
};

/// The factors and responses of a study, as the host keeps them. The host owns what the pointers
/// point to, for as long as the study lives. A host has to give the two lists; the other answers
/// are worked out from them unless overridden. Indices of names are one-based.
class KVOPT_EXPORT Variables {
public:
    Variables() = default;
    virtual ~Variables();
    Variables(const Variables&) = delete;
    Variables& operator=(const Variables&) = delete;

    /// All factors in the fixed order of the study, the block entry and the filler included.
    virtual std::vector<FactorClass*> GetAllFactors() const = 0;
    /// All responses in the order of the study.
    virtual std::vector<ResponseClass*> GetAllResponses() const = 0;

    /// Mixture factors are formulation and filler factors, process factors all others.
    virtual int GetCount(CEVar which) const;
    /// The controlled factors; with `includeBlock` the block entry as well.
    virtual std::vector<FactorClass*> GetAllDesignFactors(bool includeBlock) const;
    virtual int GetDesignFactorCount(bool includeBlock) const;

    /// Names by index; empty outside.
    virtual std::string GetFactor(int index) const;
    virtual std::string GetDesignFactor(int index) const;
    /// Null outside.
    virtual const FactorClass* GetIndexFactor(int index) const;

    /// By exact name; null for an unknown one.
    virtual FactorClass* GetFactor(const std::string& name) const;
    FactorClass* GetFactor(const std::string& name);
    /// By exact abbreviation, or by name for a factor that has none; null for an unknown one.
    virtual FactorClass* GetFactorFromAbbr(const std::string& abbreviation) const;
    /// The full name of an abbreviation; empty for an unknown one.
    virtual std::string GetNameFromAbbr(const std::string& abbreviation) const;

    virtual bool IsFactor(const std::string& name) const;
    virtual bool IsFactorQualitative(const std::string& name) const;
    /// A formulation factor; the filler is none.
    virtual bool IsMixture(const std::string& name) const;
    /// How many formulation and filler factors the study has.
    virtual int GetMixture() const;
    virtual bool IsAnyQualitative() const;
    virtual bool IsAnyFiller() const;
    /// Whether a filler makes up the rest of every mixture, so that the other formulation factors
    /// vary as freely as process factors do.
    virtual bool IstrueFiller() const;

    /// False for an unknown factor.
    virtual bool LegalSetting(const std::string& factor, const std::string& setting) const;
    /// The name of a setting by index; empty for an unknown factor or outside.
    virtual std::string GetSetting(const std::string& factor, int index) const;
    /// Units of a factor or of a response; empty for an unknown name.
    virtual std::string GetUnits(const std::string& name) const;
    /// For an unknown factor the answers are those of an empty record.
    virtual CEUse::EUse GetUse(const std::string& factor) const;
    virtual CEType::EType GetType(const std::string& factor) const;

    /// The constraint matrix, null when the study has none. Not owned by the caller.
    virtual FMatrix* GetConstraints() const;

    /// A value in pseudo-components, or back from them with `toPseudo` false. The value itself in a
    /// study that does not use them.
    virtual double GetPseudoComponent(const FactorClass* factor, double value, bool toPseudo) const;
    /// What the parts of a mixture sum to; 1 unless overridden.
    virtual double GetMixtureTotal() const;
    /// The part of a factor in the reference mixture, regulated so that all parts sum to the total.
    /// With `fixedFactor` named and `fixedValue` set, that factor is held there and the others make
    /// up the rest in the proportions of the reference. With `originalUnits` false the answer is in
    /// pseudo-components, which GetPseudoComponent() brings back. kNotSet for what is no mixture
    /// factor.
    virtual double GetMixtureReferenceRegulated(const std::string& factor,
                                                const std::string& fixedFactor, double fixedValue,
                                                bool originalUnits) const;
};

}  // namespace kvopt
