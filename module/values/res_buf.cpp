#include <plugin/res_buf.h>

#include <cstdint>
#include <cstring>
#include <memory>

#include <values/class_descriptor.h>
#include <values/type_factory.h>

namespace {

const wchar_t* const kClassName = L"ResBuf";
constexpr int kProxyFlags = 33;

const type_factory& factoryOf(int restype)
{
    return restype == ResBuf::kColor ? kValueFactories.color : typeFactoryFor(restype);
}

bool holdsText(int restype)
{
    return &typeFactoryFor(restype) == &kValueFactories.text;
}

bool holdsReal(int restype)
{
    return restype == ResBuf::kReal || restype == ResBuf::kAngle ||
           restype == ResBuf::kLinetypeScale;
}

#ifdef NDEBUG
constexpr int kCounted = 0;
#else
constexpr int kCounted = 1;
#endif

// A change of kind reinterprets the bytes of plain values, hence the copies.
template <class T>
T load(const ResBuf::Data& data)
{
    T value;
    std::memcpy(&value, data.bytes, sizeof value);
    return value;
}

template <class T>
void store(ResBuf::Data& data, T value)
{
    std::memcpy(data.bytes, &value, sizeof value);
}

ResBuf* tailOf(ResBuf* record)
{
    while (record->next())
        record = record->next();
    return record;
}

} // namespace

KdRxClass* ResBuf::gpDesc = nullptr;
long long ResBuf::s_recordsInUse = 0;

ResBuf::ResBuf()
{
    s_recordsInUse += kCounted;
}

ResBuf::~ResBuf()
{
    factoryOf(m_restype).destroy(&m_data);
    s_recordsInUse -= kCounted;
}

ResBuf* ResBuf::newRb(int restype)
{
    auto record = std::make_unique<ResBuf>();
    record->setRestype(restype);
    return record.release();
}

ResBuf* ResBuf::newRb(int restype, const wchar_t* text)
{
    std::unique_ptr<ResBuf> record(newRb(restype));
    record->setString(KdString(text));
    return record.release();
}

void ResBuf::relRb(ResBuf*& chain)
{
    while (chain) {
        ResBuf* const following = chain->m_next;
        delete chain;
        chain = following;
    }
}

ResBuf* ResBuf::last(const ResBuf* chain)
{
    if (!chain || (desc() && !chain->isKindOf(desc())))
        return nullptr;
    return tailOf(const_cast<ResBuf*>(chain));
}

void ResBuf::insert(ResBuf* chain)
{
    if (!chain)
        return;
    tailOf(chain)->m_next = m_next;
    m_next = chain;
}

void ResBuf::setRestype(int restype)
{
    const type_factory& before = factoryOf(m_restype);
    const type_factory& after = factoryOf(restype);
    if (&before != &after) {
        before.destroy(&m_data);
        m_restype = kNone; // holds nothing, should the next step throw
        after.construct(&m_data);
    }
    m_restype = restype;
}

void ResBuf::clearValue()
{
    const type_factory* const factory = &factoryOf(m_restype);
    if (factory == &kValueFactories.text)
        *m_data.text = KdString();
    else if (factory == &kValueFactories.point)
        *m_data.point = PointStorage();
    else if (factory == &kValueFactories.color)
        *m_data.color = KdCmColor();
    else
        m_data = {};
}

KdRxClass* ResBuf::desc()
{
    return findDescriptor(gpDesc, kClassName);
}

void ResBuf::rxInit()
{
    const auto makeRecord = []() -> KdRxObject* { return new ResBuf; };
    registerDescriptor(gpDesc, {kClassName, KdRxObject::desc()->name(), kProxyFlags, makeRecord});
}

KdString ResBuf::getString() const
{
    return text();
}

const KdString& ResBuf::text() const
{
    static const KdString neutral;
    return holdsText(m_restype) ? *m_data.text : neutral;
}

bool ResBuf::getBool() const
{
    if (m_restype == kBool)
        return load<std::uint8_t>(m_data) != 0;
    return getInt16() != 0;
}

signed char ResBuf::getInt8() const
{
    return m_restype == kInt8 ? load<std::int8_t>(m_data) : 0;
}

short ResBuf::getInt16() const
{
    return m_restype == kInt16 ? load<std::int16_t>(m_data) : 0;
}

int ResBuf::getInt32() const
{
    switch (m_restype) {
    case kInt32:
        return load<std::int32_t>(m_data);
    case kInt16:
    case kInt8:
        return load<std::int16_t>(m_data);
    default:
        return 0;
    }
}

double ResBuf::getDouble() const
{
    return holdsReal(m_restype) ? load<double>(m_data) : 0.0;
}

const KdGePoint2d& ResBuf::getPoint2d() const
{
    return m_restype == kPoint2d ? m_data.point->point2d : KdGePoint2d::kOrigin;
}

const KdGePoint3d& ResBuf::getPoint3d() const
{
    return m_restype == kPoint3d ? m_data.point->point3d : KdGePoint3d::kOrigin;
}

const KdCmColor& ResBuf::getColor() const
{
    static const KdCmColor neutral;
    return m_restype == kColor ? *m_data.color : neutral;
}

void ResBuf::setString(const KdString& text)
{
    if (holdsText(m_restype))
        *m_data.text = text;
}

void ResBuf::setBool(bool value)
{
    if (m_restype == kBool)
        store<std::uint8_t>(m_data, value);
}

void ResBuf::setInt8(signed char value)
{
    if (m_restype == kInt8)
        store<std::int16_t>(m_data, value);
}

void ResBuf::setInt16(short value)
{
    if (m_restype == kInt16)
        store<std::int16_t>(m_data, value);
}

void ResBuf::setInt32(int value)
{
    if (m_restype == kInt32)
        store<std::int32_t>(m_data, value);
}

void ResBuf::setDouble(double value)
{
    if (holdsReal(m_restype))
        store(m_data, value);
}

void ResBuf::setPoint2d(const KdGePoint2d& point)
{
    if (m_restype != kPoint2d)
        return;
    m_data.point->point3d.x = point.x;
    m_data.point->point3d.y = point.y;
}

void ResBuf::setPoint3d(const KdGePoint3d& point)
{
    if (m_restype == kPoint3d)
        m_data.point->point3d = point;
}

void ResBuf::setColor(const KdCmColor& color)
{
    if (m_restype == kColor)
        *m_data.color = color;
}
