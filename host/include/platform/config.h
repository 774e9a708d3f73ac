/// The settings of the user interface, kept from one start of a program to the next.
#pragma once

#include <filesystem>
#include <memory>

#include <runtime/export.h>

/// A value of a setting. Holds its bytes itself.
class KW_EXPORT KdadVariant
{
  public:
    enum VarType : int
    {
        kEmpty = 0,
        kInteger = 1, ///< 32 bits, signed
        kText = 5,    ///< wide characters with their terminator
    };

    KdadVariant() = default;
    KdadVariant(const KdadVariant& other);
    KdadVariant(KdadVariant&& other) noexcept;
    KdadVariant& operator=(KdadVariant other) noexcept;
    ~KdadVariant() = default;

    /// Gives up what it held and makes room, all zero.
    /// @param bytes  4 for an integer, 4 * (characters + 1) for a text
    /// @return       false, with the value empty, for another type or a size that is not of the
    /// type
    bool allocateValue(VarType type, int bytes);
    void freeValue();

    VarType type() const { return m_type; }
    int length() const { return m_length; } ///< in bytes
    void* data() { return m_data.get(); }   ///< null while empty
    const void* data() const { return m_data.get(); }

    static KdadVariant ofInteger(int value);
    static KdadVariant ofText(const wchar_t* text);
    /// The integer, or `otherwise` if the value is none.
    int integerOr(int otherwise) const;
    /// The text, or an empty one. Lives as long as the value.
    const wchar_t* text() const;

  private:
    VarType m_type = kEmpty;
    int m_length = 0;
    std::unique_ptr<unsigned char[]> m_data;
};

/// The store of settings: values by path and key, in a file of the user's own configuration folder.
/// Several programs may use it at a time.
class KW_EXPORT KwdrawConfig
{
  public:
    /// The parts of the store.
    enum Path : int
    {
        kUserInterface = 4,
    };

    KwdrawConfig();
    ~KwdrawConfig();
    KwdrawConfig(const KwdrawConfig&) = delete;
    KwdrawConfig& operator=(const KwdrawConfig&) = delete;

    /// Reads a value as the file holds it now.
    /// @return  false, with `value` empty, if there is none or the path is unknown
    bool getValue(Path path, const wchar_t* key, KdadVariant& value) const;
    /// Writes a value at once, unless an `Update` is open. The file is replaced as a whole, so that
    /// whenever the program dies it holds either the old values or the new ones.
    /// @return  false if the path is unknown, the value empty, or the file can't be written; the
    ///          value then counts until the program ends
    bool setValue(Path path, const wchar_t* key, const KdadVariant& value);

    /// Holds writing back for the length of a scope, so that several values arrive together.
    class KW_EXPORT Update
    {
      public:
        explicit Update(KwdrawConfig& config);
        ~Update();
        Update(const Update&) = delete;
        Update& operator=(const Update&) = delete;

      private:
        KwdrawConfig& m_config;
    };

  private:
    struct Store;
    Store& store() const;

    std::unique_ptr<Store> m_store;
    int m_openUpdates = 0;
};

/// The store of this program.
KW_EXPORT KwdrawConfig& kdadConfig();
