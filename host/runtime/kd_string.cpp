#include <runtime/kd_string.h>

#include <cstring>
#include <cwchar>
#include <new>
#include <utility>

#include <sys/single_threaded.h>

#include <runtime/heap.h>

KdString::Shared* KdString::allocate(std::size_t length)
{
    if (length == 0)
        return nullptr;
    void* block = kdHeapAlloc(sizeof(Shared) + (length + 1) * sizeof(wchar_t));
    auto* shared = new (block) Shared{1, static_cast<unsigned>(length)};
    shared->characters()[length] = L'\0';
    return shared;
}

KdString::KdString(const wchar_t* text)
    : KdString(text ? std::wstring_view(text) : std::wstring_view())
{
}

KdString::KdString(std::wstring_view text) : m_shared(allocate(text.size()))
{
    if (m_shared)
        std::wmemcpy(m_shared->characters(), text.data(), text.size());
}

KdString::KdString(const char* text)
    : KdString(fromAscii(text ? std::string_view(text) : std::string_view()))
{
}

KdString KdString::fromAscii(std::string_view text)
{
    KdString result;
    result.m_shared = allocate(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        result.m_shared->characters()[i] = static_cast<unsigned char>(text[i]);
    return result;
}

KdString& KdString::operator=(const KdString& other) noexcept
{
    other.addReference();
    release();
    m_shared = other.m_shared;
    return *this;
}

KdString& KdString::operator=(KdString&& other) noexcept
{
    std::swap(m_shared, other.m_shared);
    return *this;
}

void KdString::release() noexcept
{
    if (!m_shared)
        return;
    std::atomic<unsigned>& references = m_shared->references;
    // As long as there is one thread, nothing has to be locked for the count.
    unsigned before = references.load(std::memory_order_relaxed);
    if (__libc_single_threaded)
        references.store(before - 1, std::memory_order_relaxed);
    else
        before = references.fetch_sub(1, std::memory_order_acq_rel);
    if (before == 1)
        kdHeapFree(m_shared);
}

void* KdString::operator new(std::size_t size)
{
    return kdHeapAlloc(size);
}

void KdString::operator delete(void* block) noexcept
{
    kdHeapFree(block);
}

int KdString::compare(const KdString& other) const noexcept
{
    return m_shared == other.m_shared ? 0 : view().compare(other.view());
}

int KdString::compare(const wchar_t* other) const noexcept
{
    return view().compare(other ? std::wstring_view(other) : std::wstring_view());
}

int KdString::compare(const char* other) const noexcept
{
    const std::wstring_view own = view();
    const std::size_t otherLength = other ? std::strlen(other) : 0;
    for (std::size_t i = 0; i < own.size() && i < otherLength; ++i) {
        const auto theirs = static_cast<wchar_t>(static_cast<unsigned char>(other[i]));
        if (own[i] != theirs)
            return own[i] < theirs ? -1 : 1;
    }
    if (own.size() == otherLength)
        return 0;
    return own.size() < otherLength ? -1 : 1;
}

namespace {

int compareFolded(std::wstring_view a, std::wstring_view b) noexcept
{
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        const wchar_t left = kdFoldCase(a[i]);
        const wchar_t right = kdFoldCase(b[i]);
        if (left != right)
            return left < right ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

} // namespace

int KdString::compareNoCase(const KdString& other) const noexcept
{
    return compareFolded(view(), other.view());
}

int KdString::compareNoCase(const wchar_t* other) const noexcept
{
    return compareFolded(view(), other ? std::wstring_view(other) : std::wstring_view());
}

template <class Change>
KdString& KdString::changeEach(Change change)
{
    KdString changed(view());
    for (std::size_t i = 0; i < changed.length(); ++i)
        changed.m_shared->characters()[i] = change(changed.m_shared->characters()[i]);
    return *this = std::move(changed);
}

KdString& KdString::makeUpper()
{
    return changeEach(kdUpperCase);
}

KdString& KdString::makeLower()
{
    return changeEach(kdFoldCase);
}

int KdString::findOneOf(const wchar_t* set) const noexcept
{
    const std::size_t index = view().find_first_of(set ? set : L"");
    return index == std::wstring_view::npos ? -1 : static_cast<int>(index);
}

int KdString::find(std::wstring_view part) const noexcept
{
    const std::size_t index = view().find(part);
    return index == std::wstring_view::npos ? -1 : static_cast<int>(index);
}

KdString KdString::substr(std::size_t start, std::size_t count) const
{
    return start < length() ? KdString(view().substr(start, count)) : KdString();
}

KdString& KdString::operator+=(std::wstring_view tail)
{
    if (tail.empty())
        return *this;
    KdString joined;
    joined.m_shared = allocate(length() + tail.size());
    std::wmemcpy(joined.m_shared->characters(), kwszPtr(), length());
    std::wmemcpy(joined.m_shared->characters() + length(), tail.data(), tail.size());
    return *this = std::move(joined);
}

std::size_t KdNameHash::operator()(std::wstring_view name) const noexcept
{
    std::size_t hash = 14695981039346656037ull;
    for (const wchar_t character : name)
        hash = (hash ^ static_cast<std::size_t>(kdFoldCase(character))) * 1099511628211ull;
    return hash;
}

bool KdNameEqual::operator()(std::wstring_view a, std::wstring_view b) const noexcept
{
    return a.size() == b.size() && compareFolded(a, b) == 0;
}
