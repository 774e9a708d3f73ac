/// The value record: the one form in which property values travel through the module.
#pragma once

#include <geometry/point.h>
#include <runtime/kd_string.h>
#include <runtime/rx_class.h>

class KdCmColor;

/// A tagged value with a link to a next record. A chain carries a value with the values allowed
/// beside it, or several points. A record owns its value; the link owns nothing, and whoever holds
/// the head of a chain frees it with `relRb`. For use on one thread.
class KW_EXPORT ResBuf : public KdRxObject
{
  public:
    /// The kinds. From 5000 on they tell the form of a value, below that what it stands for.
    enum ValueType : int
    {
        kNone = 5000,            ///< nothing: a record that nobody has filled
        kReal = 5001,            ///< a real
        kPoint2d = 5002,         ///< a 2D point, kept in the storage of a 3D one
        kInt16 = 5003,           ///< a signed 16-bit integer
        kAngle = 5004,           ///< an angle in radians
        kString = 5005,          ///< a text
        kPoint3d = 5009,         ///< a 3D point
        kInt32 = 5010,           ///< a signed 32-bit integer
        kColor = 5011,           ///< a colour
        kLinetypeName = 6,       ///< a linetype name
        kLayerName = 8,          ///< a layer name
        kLinetypeScale = 48,     ///< a real
        kInt8 = 280,             ///< a signed 8-bit integer, kept in 16 bits
        kBool = 290,             ///< true or false
        kLineweightName = 370,   ///< a lineweight as its display text
        kPlotStyleChoice = 380,  ///< held by no record: names a property in the dialog's tables
        kPlotStyleName = 440,    ///< a plot style or arrow name as text
        kTransparencyText = 441, ///< "ByLayer", "ByBlock" or a whole percentage in digits
    };

    /// A 2D point lies where the x and y of a 3D point lie, so that each can be read as itself.
    union PointStorage
    {
        PointStorage() : point3d() {}

        KdGePoint3d point3d;
        KdGePoint2d point2d;
    };

    /// The value of a plain kind in its first bytes, or a pointer to what the record owns.
    union Data
    {
        unsigned char bytes[8];
        KdString* text;
        PointStorage* point;
        KdCmColor* color;
    };

    /// A record of kind `kNone` on its own; chains are made with `newRb`.
    ResBuf();
    ~ResBuf() override;
    ResBuf(const ResBuf&) = delete;
    ResBuf& operator=(const ResBuf&) = delete;

    /// A new record of any code, owned by the caller, with the neutral value of its kind.
    static ResBuf* newRb(int restype);
    /// The same with a text; a kind that holds no text drops it. Null counts as empty.
    static ResBuf* newRb(int restype, const wchar_t* text);
    /// Frees every record from `chain` on and sets `chain` to null. Null is allowed.
    static void relRb(ResBuf*& chain);

    ResBuf* next() const { return m_next; }
    /// Overwrites the link and returns `next`, so that a builder can write
    /// `tail = tail->setNext(record)`. The old follower is neither freed nor kept.
    ResBuf* setNext(ResBuf* next) { return m_next = next; }
    /// The final record of the chain that begins here; null if the object is no `ResBuf` after all,
    /// which only shows while the class is registered.
    ResBuf* last() const { return last(this); }
    /// The same for a chain that may be null, which gives null.
    static ResBuf* last(const ResBuf* chain);
    /// Splices a whole chain in directly behind this record; null changes nothing.
    void insert(ResBuf* chain);

    int restype() const { return m_restype; }
    /// Changes the kind. The value stays, bit by bit, while the new kind is kept in the same way as
    /// the old one (texts, points, colours, or plain bytes); otherwise it becomes neutral.
    void setRestype(int restype);
    /// Makes the value neutral and keeps the kind, and with it the storage.
    void clearValue();

    /// The class registered as "ResBuf", looked up until it is found; null while there is none.
    static KdRxClass* desc();
    KdRxClass* isA() const override { return desc(); }
    /// Registers the class. Ends the process if another class bears its name.
    static void rxInit();

    // A getter that is asked for a kind the record does not hold gives the neutral value, and a
    // setter on another kind does nothing. Which kinds each serves differs between some getters and
    // setters on purpose. References stay valid until the record is freed or its kind changes.

    /// Text kinds; otherwise empty. A copy, which shares its characters.
    KdString getString() const;
    /// The same without a copy.
    const KdString& text() const;
    /// `kBool`, and `kInt16` as not 0; otherwise false.
    bool getBool() const;
    /// `kInt8`; otherwise 0.
    signed char getInt8() const;
    /// `kInt16`; otherwise 0.
    short getInt16() const;
    /// `kInt32`, `kInt16` and `kInt8`; otherwise 0.
    int getInt32() const;
    /// `kReal`, `kAngle` and `kLinetypeScale`; otherwise 0.0.
    double getDouble() const;
    /// `kPoint2d`; otherwise the origin.
    const KdGePoint2d& getPoint2d() const;
    /// `kPoint3d`; otherwise the origin.
    const KdGePoint3d& getPoint3d() const;
    /// `kColor`; otherwise a default colour.
    const KdCmColor& getColor() const;

    void setString(const KdString& text);      ///< text kinds
    void setBool(bool value);                  ///< `kBool` alone
    void setInt8(signed char value);           ///< `kInt8`; fills 16 bits with the sign
    void setInt16(short value);                ///< `kInt16`
    void setInt32(int value);                  ///< `kInt32` alone
    void setDouble(double value);              ///< `kReal`, `kAngle`, `kLinetypeScale`
    void setPoint2d(const KdGePoint2d& point); ///< `kPoint2d`; z stays
    void setPoint3d(const KdGePoint3d& point); ///< `kPoint3d`
    void setColor(const KdCmColor& color);     ///< `kColor`

    /// Records that exist at the moment; a run leaves as many as it found. Builds without
    /// assertions do not count and answer 0.
    static long long recordsInUse() { return s_recordsInUse; }

    static KdRxClass* gpDesc;

  private:
    static long long s_recordsInUse;

    int m_restype = kNone;
    Data m_data{};
    ResBuf* m_next = nullptr;
};
