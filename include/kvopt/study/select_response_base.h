#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class ConfigurationSection;

/// The owner of a selection of responses, as pages see it. Without an override it keeps the
/// selection itself, one response unless UseMultipleResponses() says otherwise.
class KVOPT_EXPORT SelectResponseBase {
public:
    enum ResponseType : int {
        Ordinary = 1,  ///< the responses of Variables
        Extended = 2,  ///< the responses of the ResponseManager
        Special = 3,   ///< the items of GetSpecialAvailable()
    };

    explicit SelectResponseBase(ResponseType type = Ordinary);
    SelectResponseBase(const SelectResponseBase&) = default;
    SelectResponseBase& operator=(const SelectResponseBase&) = default;

    virtual ~SelectResponseBase();
    virtual bool UseMultipleResponses() const;
    virtual void SetSelResponses(const std::vector<std::string>& responses);
    /// Makes this response the whole selection; an empty name empties it.
    virtual void SetResponse(const std::string& response);
    virtual std::vector<std::string> GetSelResponses() const;
    virtual void GetSelResponses(std::vector<std::string>& responses) const;
    /// The first of the selection; empty without one.
    virtual std::string GetResponse() const;
    /// Moves on to the next response; false when there is none.
    virtual bool NextResponse();
    virtual bool IsAllowEmptyResponses() const;
    /// Fills `items` with the special items and `type` with their plural noun, and answers true;
    /// false, with nothing changed, when there are none.
    virtual bool GetSpecialAvailable(std::vector<std::string>& items, std::string& type) const;

    bool UseExtendedResponse() const { return type_ == Extended; }
    ResponseType GetResponseType() const { return type_; }
    void SetResponseType(ResponseType type) { type_ = type; }

    /// Writes a selection into a child section of `section`; all its former content goes.
    static void WriteSection(ConfigurationSection* section,
                             const std::vector<std::string>& responses, bool allSelected,
                             ResponseType type);
    /// Reads it back. When all were selected no names come back, so that the selection keeps that
    /// meaning when the study grows. False, with nothing changed, without the child section.
    static bool ReadSection(const ConfigurationSection* section,
                            std::vector<std::string>& responses, bool& allSelected,
                            ResponseType& type);

private:
    ResponseType type_;
    std::vector<std::string> selected_;
};

}  // namespace kvopt
