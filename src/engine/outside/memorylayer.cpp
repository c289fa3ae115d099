// The outside in memory: settings, files and dates.
#include "engine/outside/memorylayer.h"

#include <chrono>
#include <utility>

#include <fmt/chrono.h>
#include <fmt/format.h>

std::string MemorySettings::GetSetting(const std::string&, const std::string& section, const std::string& key,
                                       const std::string& defaultValue) const {
    path_.assign(section).append("/").append(key);
    const auto found = Values.find(path_);
    return found == Values.end() ? defaultValue : found->second;
}

void MemorySettings::SaveSettings(const std::string&, const std::vector<SettingValue>& values) {
    for (const SettingValue& value : values) Values[value.Section + "/" + value.Key] = value.Value;
}

std::map<std::string, std::string> MemorySettings::GetSection(const std::string&,
                                                              const std::string& section) const {
    std::map<std::string, std::string> values;
    const std::string start = section + '/';
    for (auto value = Values.lower_bound(start); value != Values.end() && value->first.starts_with(start);
         ++value) {
        values.emplace(value->first.substr(start.size()), value->second);
    }
    return values;
}

FileError MemorySettings::ChangeSettings(const std::string& application,
                                         const std::vector<SettingValue>& values) {
    if (!Fault) SaveSettings(application, values);
    return Fault;
}

bool MemorySettings::Alone(const std::string&, const std::function<void()>& step) {
    if (!Busy) step();
    return !Busy;
}

bool MemoryFiles::Exists(const std::string& path) const { return Contents.contains(path); }

FileError MemoryFiles::MakeFolder(const std::string& path) {
    if (!Fault) Contents.emplace(path, std::string{});
    return Fault;
}

FileError MemoryFiles::AppendLines(const std::string& path, const std::vector<std::string>& lines) {
    if (Fault) return Fault;
    std::string& content = Contents[path];
    if (!content.empty() && content.back() != '\n') content += "\r\n";
    for (const std::string& line : lines) content += line + "\r\n";
    return {};
}

FileError MemoryFiles::List(const std::string& folder, std::vector<std::string>& names) const {
    for (auto file = Contents.upper_bound(folder); file != Contents.end() && file->first.starts_with(folder);
         ++file) {
        std::string name = file->first.substr(folder.size());
        if (name.find('/') == std::string::npos) names.push_back(std::move(name));
    }
    return {};
}

bool MemoryFiles::Same(const std::string& one, const std::string& other) const {
    return one == other && Exists(one);
}

FileError MemoryFiles::Protection(const std::string& path) const {
    return Protected.contains(path) ? FileError("It is write-protected") : FileError();
}

FileError MemoryFiles::Read(const std::string& path, std::string& content) const {
    const auto found = Contents.find(path);
    if (found == Contents.end()) return "No such file or directory";
    content = found->second;
    return {};
}

FileError MemoryFiles::Replace(const std::string& path, const std::string& content) {
    if (!Fault) Contents[path] = content;
    return Fault;
}

FileError MemoryFiles::Remove(const std::string& path) {
    if (Fault) return Fault;
    if (Contents.erase(path) == 0) return "No such file or directory";
    return {};
}

FileError MemoryFiles::Rename(const std::string& from, const std::string& to) {
    if (Fault) return Fault;
    if (Contents.contains(to)) return "File exists";
    auto node = Contents.extract(from);
    if (node.empty()) return "No such file or directory";
    node.key() = to;
    Contents.insert(std::move(node));
    return {};
}

std::string MemoryCalendar::Text(Moment moment) const {
    const std::chrono::sys_seconds seconds{std::chrono::seconds{moment / 1000}};
    return fmt::format("{:%Y-%m-%d %H:%M:%S}", fmt::gmtime(std::chrono::system_clock::to_time_t(seconds)));
}

bool MemoryForms::Ask(const std::string& question) {
    Questions.push_back(question);
    return Answer;
}

std::optional<std::string> MemoryForms::AskSaveFile(const std::string& name, const std::string& filter) {
    SaveQuestions.push_back(name + "|" + filter);
    if (!FirstSaveFiles.empty()) {
        std::string file = FirstSaveFiles.front();
        FirstSaveFiles.erase(FirstSaveFiles.begin());
        return file;
    }
    return SaveFile;
}

bool MemoryForms::ShowProgress(const std::string&, int percent) {
    LastPercent = percent;
    return percent < CancelAt;
}

AfterGame MemoryForms::ShowFinish(const FinishSummary& summary) {
    ++Finished;
    Last = summary;
    if (OnFinish) OnFinish();
    return std::exchange(Choice, AfterGame::Nothing);
}
