#include "Engine/Registry/RUXGroupClassFile.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXDefaultGroups.h"
#include "platform/FileService.h"
#include "platform/KernelService.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

std::string BesideLibrary(std::string_view extension) {
    return ChangeFileExt(Platform().Kernel.GetLibraryName(), extension);
}

/// Empty for an absent file; nothing for one that is there but cannot be read.
std::optional<std::string> ReadGroupFile(const std::string& name, std::int64_t stamp) {
    std::optional<std::string> content = Platform().Files.ReadFile(name);
    if (!content && stamp == 0) content.emplace();
    return content;
}

template <class T>
T& MadeOnFirstUse(std::unique_ptr<T>& place) {
    // A worker's report may be the first to ask.
    const std::lock_guard lock(Engine().MakingGroups);
    if (!place) {
        auto made = std::make_unique<T>();
        made->LoadFile();
        place = std::move(made);
    }
    return *place;
}

}  // namespace

void TRUXGroupClassFile::LoadFile() {
    const std::lock_guard lock(FLock);
    Load();
}

void TRUXGroupClassFile::Load() {
    const std::string name = GetFileName();
    // The stamp first: what is written between the two looks is then seen by the next query.
    const std::int64_t stamp = Platform().Files.LastWriteTime(name);
    const std::optional<std::string> content = ReadGroupFile(name, stamp);
    if (content) FIni.Load(*content);
    InitDefault();
    if (!content) return Warn();
    FLastWrite = stamp;
    Update(name, *content, stamp);
}

void TRUXGroupClassFile::Update(const std::string& name, std::string_view current, std::int64_t stamp) {
    const std::string text = FIni.Save();
    if (text != current) {
        if (!Platform().Files.WriteFile(name, text)) return Warn();
        stamp = Platform().Files.LastWriteTime(name);
    }
    FLastWrite = stamp;
    FFailed = FWarningDue = false;
}

void TRUXGroupClassFile::Warn() {
    if (!FFailed) FFailed = FWarningDue = true;
    WriteWarning();
}

void TRUXGroupClassFile::WriteWarning() {
    if (!FWarningDue || Engine().ServerPort == 0) return;
    FWarningDue = false;
    GetLogger().Warn(Format(Ansi("分组文件%s无法读写!"), {GetFileName()}));
}

void TRUXGroupClassFile::AddClass(std::string_view group, std::string_view className) {
    const std::lock_guard lock(FLock);
    FIni.WriteString(group, className, "");
}

void TRUXGroupClassFile::SaveFile() {
    const std::lock_guard lock(FLock);
    const std::string name = GetFileName();
    const std::int64_t stamp = Platform().Files.LastWriteTime(name);
    if (const std::optional<std::string> current = ReadGroupFile(name, stamp))
        Update(name, *current, stamp);
    else
        Warn();
}

std::vector<std::string> TRUXGroupClassFile::GetGroups() {
    const std::lock_guard lock(FLock);
    return FIni.ReadSections();
}

void TRUXGroupClassFile::AddRows(std::span<const TGroupRows> rows) {
    for (const TGroupRows& row : rows) {
        std::string_view rest = row.Idents;
        while (!rest.empty()) {
            const std::string_view ident = rest.substr(0, rest.find(' '));
            FIni.WriteString(row.Section, ident, "");
            rest.remove_prefix(std::min(ident.size() + 1, rest.size()));
        }
    }
}

void TRUXGroupClassFile::RefreshIfChanged() {
    WriteWarning();
    if (Platform().Files.LastWriteTime(GetFileName()) != FLastWrite) Load();
}

bool TIniClassGroup::IsInGroup(std::string_view group, std::string_view className, const TObject* instance) {
    const std::lock_guard lock(FLock);
    RefreshIfChanged();
    return ContainsHeld(group, className, instance);
}

void TIniClassGroup::Refresh() {
    const std::lock_guard lock(FLock);
    RefreshIfChanged();
}

bool TIniClassGroup::Contains(std::string_view group, std::string_view className, const TObject* instance) {
    const std::lock_guard lock(FLock);
    return ContainsHeld(group, className, instance);
}

bool TIniClassGroup::ContainsHeld(std::string_view group, std::string_view className,
                                  const TObject* instance) const {
    if (FIni.ValueExists(group, className)) return true;
    if (!instance) return false;
    const TClass* type = &instance->ClassType();
    while (type && !FIni.ValueExists(group, type->Name())) type = type->Parent();
    // A class that some group lists by name belongs to that group alone. A row with a value does not bind it:
    // only the bare line does.
    return type && !FIni.HasLine(std::string(className) + "=");
}

std::string TIniClassGroup::GetFileName() const {
    return BesideLibrary(".classgroup.ini");
}

void TIniClassGroup::InitDefault() {
    AddRows(DefaultClassRows());
}

bool TCheckEnabledMethodGroup::IsCheckedMethod(std::string_view group, std::string_view methodName) {
    const std::lock_guard lock(FLock);
    RefreshIfChanged();
    return FIni.ValueExists(group, methodName);
}

std::string TCheckEnabledMethodGroup::GetFileName() const {
    return BesideLibrary(".methodgroup.ini");
}

void TCheckEnabledMethodGroup::InitDefault() {
    AddRows(DefaultMethodRows());
}

TIniClassGroup& IniClassGroup() {
    return MadeOnFirstUse(Engine().ClassGroup);
}

TCheckEnabledMethodGroup& CheckEnabledMethodGroup() {
    return MadeOnFirstUse(Engine().MethodGroup);
}

bool MatchesControlType(const TObject* instance, std::string_view className, std::string_view typeWord) {
    if (SameText(className, typeWord)) return true;
    return !className.empty() && IniClassGroup().Contains(typeWord, className, instance);
}

}  // namespace rux
