/// What the dialog knows: the object types, the properties of each, and the values and operators of
/// each property.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <database/color.h>
#include <database/entity.h>
#include <plugin/res_buf.h>
#include <runtime/kd_array.h>
#include <runtime/std_str.h>

#include <values/operators.h>

class KdDbDatabase;
class KdDbEntityPE;

/// What is known of one property of one type.
struct PropertyValue
{
    PropertyValue() = default;
    PropertyValue(std::wstring singleText, ResBuf::ValueType kind)
        : text(std::move(singleText)), type(kind)
    {
    }

    bool isList = false;               ///< offered as a list, not typed
    std::vector<std::wstring> strings; ///< the listed values
    std::wstring text;                 ///< the value of the type's first entity
    ResBuf::ValueType type = ResBuf::kNone;
    std::vector<KdCmColor> colors; ///< of that entity, where the value is a colour
};

/// The maps behind the dialog. They grow as types are met and are never pruned, so a list shows the
/// values of the first entity of its type. A composite key is a type name, a colon and a short
/// property name; a short name is what follows the first colon of a property key, tabs included.
class TypeCatalog
{
  public:
    using Value = PropertyValue;

    /// Enters the operators and the properties that all types share, under "Multiple".
    void InitData();

    /// Enters a type by its first entity; a type that is there already stays as it is. An entity
    /// without a provider brings a type without properties.
    void AddNewTypeProperties(CStdStr<wchar_t> typeName, KdDbEntity* entity);

    /// What is known of a property: the record that all types share, else that of the type; null if
    /// there is neither. Valid until the catalog goes.
    const Value* GetValue(const CStdStr<wchar_t>& typeName,
                          const CStdStr<wchar_t>& shortName) const;

    /// The display name of an entity's type, or where it has none the name of its class in drawing
    /// files; empty for null.
    CStdStr<wchar_t> GetLocalNameOfKdDbEntity(KdDbEntity* entity) const;

    /// Lists the layers of the working drawing anew; "0" where there are none.
    void UpdateLayerPropertyValues();
    /// Appends the names of the working drawing's materials, sorted.
    void UpdateMaterialPropertyValues(std::vector<CStdStr<wchar_t>>& list) const;
    /// Appends the names of a drawing's layers, sorted.
    static void GetLayerList(KdDbDatabase* database, KdArray<KdString>& list);

    static std::wstring compositeKey(const std::wstring& typeName, const std::wstring& shortName);

    std::map<std::wstring, std::vector<std::wstring>>
        TypeProperties;                                  ///< short names, in list order
    std::map<std::wstring, std::wstring> PropertyKeys;   ///< whole keys by composite keys
    std::map<int, std::vector<Operators>> TypeOperators; ///< by kind of value
    std::map<std::wstring, Value> PropertyValues;        ///< by composite keys
    std::map<Operators, std::wstring> OperatorNames;     ///< labels
    std::map<std::wstring, Operators> OperatorsByName;   ///< the reverse
    std::map<std::wstring, KdArray<KdString>> TypeKeys;  ///< whole keys, in list order

  private:
    struct Gathering;

    void enterOperators();
    void enterSharedProperties();
    void gather(Gathering& gathering, const KdString& key);
    void enterValue(const Gathering& gathering, const std::wstring& shortName, const ResBuf& head);
    void enterCoordinates(Gathering& gathering, const KdString& key, const std::wstring& shortName,
                          const ResBuf& head);
    void list(Gathering& gathering, const std::wstring& shortName, const KdString& key);
};
