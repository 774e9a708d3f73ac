/// The folders and files that belong to the program and to its user.
#pragma once

#include <array>

#include <environment/file_paths.h>
#include <platform/registry.h>

/// Begins with defaults, which `docs/environment.md` lists, and may be loaded from and saved to the
/// current profile of the registry. For use on the main thread.
class KW_EXPORT SystemPaths
{
  public:
    /// Each is a folder without a slash at its end, unless stated otherwise.
    enum Place
    {
        // Kept in the registry.
        kMainDictionary, ///< a file
        kPlotConfig,
        kPlotDescription,
        kPlotStyleTable,
        kToolPalette,
        kSaveFile,
        kTempPrefix,
        kMenuFile,   ///< a file
        kNewDrawing, ///< the template for new drawings, a file; empty: none
        kHelp,
        kInstall,
        kVersion, ///< of the program, no path
                  // Only ever the defaults.
        kBlocks,
        kDrawing,
        kFonts,
        kPatterns,
        kTemplate,
        kXref,
        kSupport,
        kPlaceCount,
    };

    SystemPaths();
    ~SystemPaths() = default;
    SystemPaths(const SystemPaths&) = default;
    SystemPaths& operator=(const SystemPaths&) = default;

    const CStdStr<wchar_t>& get(Place place) const { return m_paths[place]; }
    void set(Place place, const CStdStr<wchar_t>& path) { m_paths[place] = path; }

    /// The folders in which files of the program are looked for, with semicolons between them.
    CStdStr<wchar_t> searchPath() const;

    /// Takes over the values that the profile has; the others stay.
    void LoadFromRegistry();
    /// Writes all values that are kept there. False if one could not be written.
    bool SaveToRegistry() const;

    /// Reads one text value; false, `value` untouched, if there is none or it is no text.
    static bool LoadKey(HKEY key, CStdStr<wchar_t> name, CStdStr<wchar_t>& value);
    static bool SaveKey(HKEY key, CStdStr<wchar_t> name, CStdStr<wchar_t> value);

  private:
    std::array<CStdStr<wchar_t>, kPlaceCount> m_paths;
};

/// The folder of the user's own templates if it is there, else that of the program.
KW_EXPORT void getDefaultTemplatePath(CStdStr<wchar_t>& path);

/// Characters that a path can have, its terminator included.
constexpr int kLongestSystemPath = 4096;

/// Finds a file: where `name` says if it is an absolute path, else in the folders of `extra` (with
/// semicolons, may be null), in the current folder, and on the search path of the system paths.
/// @param result  room for `kLongestSystemPath` characters; untouched on failure
KW_EXPORT bool SearchSystemFile(const wchar_t* name, wchar_t* result, const wchar_t* extra);
