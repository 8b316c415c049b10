// Class groups and method groups: tables of a type word's classes or methods, compiled in, merged with a text
// file beside the library, and read again whenever that file changes.
#pragma once

#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/toolkit/Classes.h"
#include "rtl/MemIniFile.h"

namespace rux {

struct TGroupRows {
    std::string_view Section;
    /// Separated by one blank each.
    std::string_view Idents;
};

/// Base of both. Queries may come from the user-interface thread and from workers; the tables are guarded.
class TRUXGroupClassFile {
 public:
    virtual ~TRUXGroupClassFile() = default;

    /// Reads the file (an absent one is empty), adds the default rows and writes the file back if its bytes
    /// would change. A file that cannot be written is one warning in the log; the table then lives in memory.
    /// A file that is there but cannot be read is the same warning, leaves the rows that are known in force
    /// and is never overwritten; the next query tries again.
    void LoadFile();
    /// A row in memory only.
    void AddClass(std::string_view group, std::string_view className);
    /// Writes the file if its bytes would change, and remembers its time stamp. Warns as LoadFile does.
    void SaveFile();
    /// Type words in file order.
    std::vector<std::string> GetGroups();

 protected:
    virtual std::string GetFileName() const = 0;
    /// Writes the default rows.
    virtual void InitDefault() = 0;
    void AddRows(std::span<const TGroupRows> rows);
    /// Loads anew when the file's time stamp differs from the one last seen, in either direction. The lock is
    /// held.
    void RefreshIfChanged();

    std::mutex FLock;
    TMemIniFile FIni;

 private:
    void Load();
    void Update(const std::string& name, std::string_view current, std::int64_t stamp);
    void Warn();
    void WriteWarning();

    std::int64_t FLastWrite = 0;
    /// The file could not be read or written when it was last tried.
    bool FFailed = false;
    /// The first tries happen before the log has a place.
    bool FWarningDue = false;
};

/// Which classes count as a type word.
class TIniClassGroup final : public TRUXGroupClassFile {
 public:
    /// Looks at the file's time stamp, then answers as Contains.
    bool IsInGroup(std::string_view group, std::string_view className, const TObject* instance);

    /// One look at the file for a whole row of questions: call it, then Contains for each candidate.
    void Refresh();
    /// By the class's own name, or by inheritance for a class that no group lists by name.
    bool Contains(std::string_view group, std::string_view className, const TObject* instance);

 protected:
    std::string GetFileName() const override;
    void InitDefault() override;

 private:
    bool ContainsHeld(std::string_view group, std::string_view className, const TObject* instance) const;
};

/// Which methods of a type word demand an enabled control.
class TCheckEnabledMethodGroup final : public TRUXGroupClassFile {
 public:
    bool IsCheckedMethod(std::string_view group, std::string_view methodName);

 protected:
    std::string GetFileName() const override;
    void InitDefault() override;
};

/// The engine's instances, made and loaded on first use. Any thread.
TIniClassGroup& IniClassGroup();
TCheckEnabledMethodGroup& CheckEnabledMethodGroup();

/// The test behind a locator's class step: equal names, else membership of the group. Without a look at the
/// file: the caller has called Refresh.
bool MatchesControlType(const TObject* instance, std::string_view className, std::string_view typeWord);

}  // namespace rux
