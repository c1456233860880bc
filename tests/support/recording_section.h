#pragma once

/// \file
/// Sections that note what is done to them, for tests of the order of keys.

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/stores/ini_file_factory.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"

namespace kvopt::test {

using SectionLog = std::vector<std::string>;

/// Passes every call on to another section and writes one line for each that changes or clears
/// something or reads a key: "[path] int PlotType = 1", "[path] Clear", "[path] read int PlotType".
/// Section is ConfigurationSection or, for what takes an ini section, IniFileSection.
template <class Section>
class RecordingSectionOf : public Section {
public:
    RecordingSectionOf(std::shared_ptr<ConfigurationSection> inner, SectionLog& log,
                       std::string path = {})
        : inner_(std::move(inner)), log_(log), path_(std::move(path)) {}

    using ConfigurationSection::WriteKey;

    void SetSection(const char* name) override {
        selected_ = name;
        inner_->SetSection(name);
    }
    std::unique_ptr<ConfigurationSection> GetIndexedSection(const char* name, int index) override {
        return Child(inner_->GetIndexedSection(name, index),
                     std::string(name) + "#" + std::to_string(index));
    }
    std::unique_ptr<ConfigurationSection> GetSection(const char* name) override {
        return Child(inner_->GetSection(name), name);
    }
    int CountSections(const char* name) const override { return inner_->CountSections(name); }
    void Clear() override {
        Note("Clear");
        inner_->Clear();
    }
    void Flush() override {
        Note("Flush");
        inner_->Flush();
    }
    bool HasSection(const char* name, bool alsoEmpty) const override {
        return inner_->HasSection(name, alsoEmpty);
    }
    bool ReadKey(const char* key, bool& value) const override {
        Note(std::string("read bool ") + key);
        return inner_->ReadKey(key, value);
    }
    bool ReadKey(const char* key, double& value) const override {
        Note(std::string("read double ") + key);
        return inner_->ReadKey(key, value);
    }
    bool ReadKey(const char* key, int& value) const override {
        Note(std::string("read int ") + key);
        return inner_->ReadKey(key, value);
    }
    bool ReadKey(const char* key, std::string& value) const override {
        Note(std::string("read text ") + key);
        return inner_->ReadKey(key, value);
    }
    void WriteKey(const char* key, bool value) override {
        Note(std::string("bool ") + key + " = " + (value ? "true" : "false"));
        inner_->WriteKey(key, value);
    }
    void WriteKey(const char* key, double value) override {
        Note(std::string("double ") + key + " = " + KvString::FromDouble(value));
        inner_->WriteKey(key, value);
    }
    void WriteKey(const char* key, int value) override {
        Note(std::string("int ") + key + " = " + std::to_string(value));
        inner_->WriteKey(key, value);
    }
    void WriteKey(const char* key, const char* value) override {
        Note(std::string("text ") + key + " = " + value);
        inner_->WriteKey(key, value);
    }
    std::unique_ptr<const ConfigurationSection> GetIndexedSection(const char* name,
                                                                  int index) const override {
        return ConstChild(std::as_const(*inner_).GetIndexedSection(name, index),
                          std::string(name) + "#" + std::to_string(index));
    }
    std::unique_ptr<const ConfigurationSection> GetSection(const char* name) const override {
        return ConstChild(std::as_const(*inner_).GetSection(name), name);
    }

private:
    using ChildSection = RecordingSectionOf<ConfigurationSection>;

    std::string Path() const {
        return path_.empty() || selected_.empty() ? path_ + selected_ : path_ + "/" + selected_;
    }
    void Note(const std::string& what) const { log_.push_back("[" + Path() + "] " + what); }
    std::string Below(const std::string& name) const {
        return Path().empty() ? name : Path() + "/" + name;
    }
    std::unique_ptr<ConfigurationSection> Child(std::unique_ptr<ConfigurationSection> child,
                                                const std::string& name) const {
        return std::make_unique<ChildSection>(std::move(child), log_, Below(name));
    }
    std::unique_ptr<const ConfigurationSection> ConstChild(
        std::unique_ptr<const ConfigurationSection> child, const std::string& name) const {
        if (!child) {
            return nullptr;
        }
        // Handed on as const, so that nothing is ever written through it.
        return std::make_unique<ChildSection>(
            std::const_pointer_cast<ConfigurationSection>(
                std::shared_ptr<const ConfigurationSection>(std::move(child))),
            log_, Below(name));
    }

    std::shared_ptr<ConfigurationSection> inner_;
    SectionLog& log_;
    std::string path_;
    std::string selected_;
};

using RecordingSection = RecordingSectionOf<ConfigurationSection>;
using RecordingIniSection = RecordingSectionOf<IniFileSection>;

/// Does once more what one line of a log notes, if it notes a key that was written: opens its
/// section below `root`, which comes to be with the key, and writes it. False for other lines. For
/// names without "/", "#" and " = ".
inline bool Replay(const std::string& line, ConfigurationSection& root) {
    const std::size_t pathEnd = line.find("] ");
    const std::size_t kind = pathEnd + 2;
    const std::size_t key = line.find(' ', kind) + 1;
    const std::size_t equals = line.find(" = ", key);
    if (key == 0 || equals == std::string::npos) {
        return false;
    }
    ConfigurationSection* section = &root;
    std::unique_ptr<ConfigurationSection> opened;
    for (const std::string& step : KvStdString::Split(line.substr(1, pathEnd - 1), "/")) {
        const std::size_t number = step.find('#');
        opened = number == std::string::npos
                     ? section->GetSection(step.c_str())
                     : section->GetIndexedSection(step.substr(0, number).c_str(),
                                                  std::stoi(step.substr(number + 1)));
        section = opened.get();
    }
    const std::string type = line.substr(kind, key - 1 - kind);
    const std::string name = line.substr(key, equals - key);
    const std::string value = line.substr(equals + 3);
    if (type == "bool") {
        section->WriteKey(name.c_str(), value == "true");
    } else if (type == "int") {
        section->WriteKey(name.c_str(), std::stoi(value));
    } else if (type == "double") {
        double number = 0;
        KvString::FromStore(value, number);
        section->WriteKey(name.c_str(), number);
    } else {
        section->WriteKey(name.c_str(), value);
    }
    return true;
}

/// The lines of a log that note a key that was written.
inline SectionLog WrittenKeys(const SectionLog& log) {
    SectionLog keys;
    std::copy_if(log.begin(), log.end(), std::back_inserter(keys),
                 [](const std::string& line) { return line.find(" = ") != std::string::npos; });
    return keys;
}

/// The name of the key that a line notes.
inline std::string KeyOf(const std::string& line) {
    const std::size_t key = line.find(' ', line.find("] ") + 2) + 1;
    return line.substr(key, line.find(" = ", key) - key);
}

/// Keeps every ini file in memory, and notes what is done to them. Put in place for the life of the
/// object.
class MemoryIniFiles {
public:
    MemoryIniFiles() : factory_(std::make_shared<Factory>(*this)) {
        former_ = IniFileFactory::Install(factory_);
    }
    ~MemoryIniFiles() { IniFileFactory::Install(former_); }
    MemoryIniFiles(const MemoryIniFiles&) = delete;
    MemoryIniFiles& operator=(const MemoryIniFiles&) = delete;

    /// The file itself, past the log; begins with no section selected.
    IniFileSection& File(const std::string& name) {
        std::shared_ptr<IniFileSection>& file = files_[name];
        if (!file) {
            file = std::make_shared<IniFileSection>();
        }
        file->SetSection("");
        return *file;
    }
    SectionLog& Log() { return log_; }
    /// While set, no file can be had.
    bool refuses = false;

private:
    class Factory : public IniFileFactory {
    public:
        explicit Factory(MemoryIniFiles& files) : files_(files) {}
        std::unique_ptr<IniFileSection> GetIniFile(const std::string& fileName,
                                                   const std::string& section) override {
            if (files_.refuses) {
                return nullptr;
            }
            files_.File(fileName);
            auto ini = std::make_unique<RecordingIniSection>(files_.files_[fileName], files_.log_);
            ini->SetSection(section.c_str());
            return ini;
        }

    private:
        MemoryIniFiles& files_;
    };

    std::map<std::string, std::shared_ptr<IniFileSection>> files_;
    SectionLog log_;
    std::shared_ptr<Factory> factory_;
    std::shared_ptr<IniFileFactory> former_;
};

}  // namespace kvopt::test
