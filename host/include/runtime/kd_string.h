/// Wide text that is cheap to copy.
#pragma once

#include <atomic>
#include <cstddef>
#include <string_view>

#include <runtime/export.h>

/// A wide text. Copies share the characters until one of them is changed, so passing one by value
/// allocates nothing. Two threads may use two copies of one text, but not one and the same object.
class KW_EXPORT KdString
{
  public:
    KdString() noexcept = default;
    KdString(const wchar_t* text); ///< null counts as empty
    KdString(std::wstring_view text);
    /// From ASCII; a byte above 127 becomes the character of that number.
    explicit KdString(const char* text);
    static KdString fromAscii(std::string_view text);
    KdString(const KdString& other) noexcept : m_shared(other.m_shared) { addReference(); }
    KdString(KdString&& other) noexcept : m_shared(other.m_shared) { other.m_shared = nullptr; }
    KdString& operator=(const KdString& other) noexcept;
    KdString& operator=(KdString&& other) noexcept;
    ~KdString() { release(); }

    /// `KdString` objects themselves lie on the platform's heap when made with new.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t, void* place) noexcept { return place; }
    static void operator delete(void* block) noexcept;
    static void operator delete(void*, void*) noexcept {}

    /// The text with its terminator; valid until this object changes or dies.
    const wchar_t* kwszPtr() const noexcept { return m_shared ? m_shared->characters() : L""; }
    std::wstring_view view() const noexcept
    {
        return m_shared ? std::wstring_view(m_shared->characters(), m_shared->length)
                        : std::wstring_view();
    }
    operator std::wstring_view() const noexcept { return view(); }
    std::size_t length() const noexcept { return m_shared ? m_shared->length : 0; }
    bool isEmpty() const noexcept { return length() == 0; }

    /// Exact comparison by character: below 0, 0 or above 0.
    int compare(const KdString& other) const noexcept;
    int compare(const wchar_t* other) const noexcept;
    int compare(const char* other) const noexcept;
    /// The same, each character lowered first by the rules of `kdFoldCase`.
    int compareNoCase(const KdString& other) const noexcept;
    int compareNoCase(const wchar_t* other) const noexcept;

    KdString& makeUpper();
    KdString& makeLower();

    /// Index of the first character that is one of `set`, or -1.
    int findOneOf(const wchar_t* set) const noexcept;
    /// Index of the first place where `part` begins, or -1.
    int find(std::wstring_view part) const noexcept;
    /// `count` characters from `start`, cut at the end of the text; all the rest without `count`.
    KdString substr(std::size_t start, std::size_t count = std::wstring_view::npos) const;

    KdString& operator+=(std::wstring_view tail);

    friend bool operator==(const KdString& a, const KdString& b) noexcept
    {
        return a.m_shared == b.m_shared || a.view() == b.view();
    }
    friend bool operator==(const KdString& a, const wchar_t* b) noexcept
    {
        return a.compare(b) == 0;
    }
    friend bool operator<(const KdString& a, const KdString& b) noexcept
    {
        return a.view() < b.view();
    }
    friend KdString operator+(KdString a, std::wstring_view b) { return a += b; }

  private:
    struct Shared
    {
        std::atomic<unsigned> references;
        unsigned length;
        wchar_t* characters() { return reinterpret_cast<wchar_t*>(this + 1); }
    };

    static Shared* allocate(std::size_t length);
    void addReference() const noexcept
    {
        if (m_shared)
            m_shared->references.fetch_add(1, std::memory_order_relaxed);
    }
    void release() noexcept;
    template <class Change>
    KdString& changeEach(Change change);

    Shared* m_shared = nullptr;
};

/// The lower-case form of a character in simple case folding, independent of the process's locale.
KW_EXPORT wchar_t kdFoldCase(wchar_t character) noexcept;
/// The upper-case form, likewise.
KW_EXPORT wchar_t kdUpperCase(wchar_t character) noexcept;

/// Hash and equality of texts that ignore case, for maps keyed by names.
struct KW_EXPORT KdNameHash
{
    using is_transparent = void;
    std::size_t operator()(std::wstring_view name) const noexcept;
};
struct KW_EXPORT KdNameEqual
{
    using is_transparent = void;
    bool operator()(std::wstring_view a, std::wstring_view b) const noexcept;
};
