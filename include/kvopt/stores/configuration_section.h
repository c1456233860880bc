#pragma once

#include <memory>
#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// A section of a hierarchical store: keys with values, and sections inside it.
///
/// An object of this class is a handle. It keeps the store alive, may be dropped at any time, and
/// several handles may stand for the same section. A handle stays good when its section is cleared
/// or removed; writing through it then makes the section anew.
///
/// Names are raw text: every character is legal in them, the empty name too, and none separates
/// levels. Sections of one name are told apart by a one-based number; a store keeps their order and
/// a section without keys. Names and texts are UTF-8. A null name or text throws InvalidArgument.
///
/// A key remembers its type. A bool and an int read each other (0 is false), an int reads as a
/// double, and a text reads as nothing but a text. (An ini file keeps no types: there a key reads
/// as everything that its text can be.)
class KVOPT_EXPORT ConfigurationSection {
public:
    ConfigurationSection(const ConfigurationSection&) = delete;
    ConfigurationSection& operator=(const ConfigurationSection&) = delete;
    virtual ~ConfigurationSection();

    /// Makes the section of this name, inside the one this handle was opened on, the section that
    /// the next calls belong to; the empty name goes back to the one it was opened on. Creates
    /// nothing: the section comes to be with its first key.
    virtual void SetSection(const char* name) = 0;
    /// The child with this name and one-based number, created when it is not there. A number below
    /// 1 throws InvalidArgument.
    virtual std::unique_ptr<ConfigurationSection> GetIndexedSection(const char* name,
                                                                    int index) = 0;
    /// The child with this name, the one with the lowest number if there are several; created with
    /// the number 1 when there is none.
    virtual std::unique_ptr<ConfigurationSection> GetSection(const char* name) = 0;
    /// How many children carry this name, whatever their numbers.
    virtual int CountSections(const char* name) const = 0;
    /// Takes the keys and the sections inside out of this section; the section itself stays.
    virtual void Clear() = 0;
    /// Writes the store through to its file, if it has one. Never throws for a file that cannot be
    /// written: the store trouble handler is told, and the changes wait for the next time.
    virtual void Flush() = 0;
    /// Whether GetSection() would find a child with this name; with `alsoEmpty` false only one that
    /// holds something counts.
    virtual bool HasSection(const char* name, bool alsoEmpty) const = 0;

    /// False when the key is absent or of a type that does not read so; the target is then left
    /// alone.
    virtual bool ReadKey(const char* key, bool& value) const = 0;
    virtual bool ReadKey(const char* key, double& value) const = 0;
    virtual bool ReadKey(const char* key, int& value) const = 0;
    virtual bool ReadKey(const char* key, std::string& value) const = 0;

    virtual void WriteKey(const char* key, bool value) = 0;
    virtual void WriteKey(const char* key, double value) = 0;
    virtual void WriteKey(const char* key, int value) = 0;
    virtual void WriteKey(const char* key, const char* value) = 0;

    /// As the operations of the same names, but null for a section that is not there: nothing is
    /// created through a section that is only read.
    virtual std::unique_ptr<const ConfigurationSection> GetIndexedSection(const char* name,
                                                                          int index) const = 0;
    virtual std::unique_ptr<const ConfigurationSection> GetSection(const char* name) const = 0;

    /// A text with a NUL character, which no key can hold, throws InvalidArgument.
    void WriteKey(const char* key, const std::string& value);

    /// The value of the key, or `fallback` where ReadKey() answers false.
    template <class Value>
    Value ReadKeyOr(const char* key, Value fallback) const {
        ReadKey(key, fallback);
        return fallback;
    }

protected:
    ConfigurationSection() = default;
};

}  // namespace kvopt
