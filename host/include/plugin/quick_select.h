/// How a host talks to the quick-select module: the names of its exported functions, and the plain
/// records that pass between the two. A host loads the shared object, looks the functions up by
/// name and needs nothing else of it.
#pragma once

#include <cstddef>

#include <database/object_id.h>

namespace quick_select {

/// Reasons for `DllMain`.
constexpr unsigned kDetach = 0;
constexpr unsigned kAttach = 1;

/// One value of a property. Which member counts follows from `restype`: 5001, 5004 and 48 `number`;
/// 280, 290, 5003, 5010 and 5011 `integer` (a colour as its word); 5002 and 5009 `point`; all other
/// kinds but 5000 `text`.
struct Value
{
    int restype;
    const wchar_t* text;
    double number;
    long long integer;
    double point[3];
};

/// One property of an entity, with what it allows.
struct Property
{
    const wchar_t* key; ///< category, colon, name; ordering tabs included
    bool readOnly;
    /// The head, or all points of a property that has several; empty if nothing answers for it.
    const Value* values;
    std::size_t valueCount;
    /// The allowed values; empty unless asked for and offered.
    const Value* choices;
    std::size_t choiceCount;
};

/// An object type that the candidates hold.
struct Type
{
    const wchar_t* displayName;
    const wchar_t* className;
    KdDbObjectId example; ///< the first entity of the type
    std::size_t count;    ///< entities of that name and class
};

/// An entity of the current space.
struct Entity
{
    KdDbObjectId id;
    const wchar_t* className;
    const wchar_t* displayName;
};

/// One run without a dialog. Null texts count as empty.
struct Request
{
    const wchar_t* typeName;     ///< display name of the type; empty for all types
    const wchar_t* className;    ///< runtime class of the type; ignored without a type
    const wchar_t* propertyKey;  ///< the whole key, without an axis
    int axis;                    ///< 1 X, 2 Y, 3 Z for a point; 0 otherwise
    int kind;                    ///< restype of the property's value
    const wchar_t* operatorText; ///< "=", "<>", ">", "<", "*"; empty selects all
    const wchar_t* valueText;    ///< the value as a person types it
    bool exclude;                ///< everything but the matches
    bool append;                 ///< add to the selection in place of replacing it
    bool fromSelection;          ///< over the starting selection, not the whole space
    const double* tolerance;     ///< for reals; null: by the drawing's linear precision
};

enum class Outcome : int
{
    Done = 0,        ///< the selection is set
    NoDrawing = 1,   ///< there is no working database, or its current space can't be read
    NoObjects = 2,   ///< the current space holds nothing that can be selected
    BadOperator = 3, ///< the property's kind does not offer the operator
    BadValue = 4,    ///< the value is no value of the property's kind
    Abandoned = 5,   ///< an entity has no provider: the module is not initialised
};

struct Result
{
    Outcome outcome;
    int matches; ///< as the count line tells it
};

/// What a run asked for, as `QSelectLastRequest` tells it. Its texts live as long as the visit.
struct PastRequest
{
    /// Over the same objects and the same starting selection `QSelectRun` selects the same by it.
    Request request;
    /// The run was over objects that were picked in the dialog, which are no selection any more.
    bool overPicked;
};

/// What the dialog that is open would select if it were accepted now. Text and ids live as long as
/// the visit.
struct Preview
{
    enum class State : int
    {
        NoDialog = 0,   ///< no dialog is open
        Incomplete = 1, ///< the dialog can't be accepted as it stands
        Counting = 2,   ///< not all candidates have been tested yet
        Done = 3,
        Abandoned = 4, ///< as `Outcome::Abandoned`
    };
    State state;
    const wchar_t*
        reason;  ///< of `Incomplete`: what the dialog would say, if it would say something
    double part; ///< of the candidates, 0 to 1, that have been tested
    int matches; ///< so far; in the end what the count line would tell
    const KdDbObjectId* ids; ///< what the run would find; what it would be added to is not in it
    std::size_t idCount;
};

using TypeVisitor = void (*)(void* context, const Type& type);
using EntityVisitor = void (*)(void* context, const Entity& entity);
using PropertyVisitor = void (*)(void* context, const Property& property);
using OperatorVisitor = void (*)(void* context, const wchar_t* operatorText);
using RequestVisitor = void (*)(void* context, const PastRequest* request);
using PreviewVisitor = void (*)(void* context, const Preview& preview);
using DialogWatcher = void (*)(void* context);

// The exported functions. A host declares a pointer of the type and looks the name up.

using DllMainFunction = int(void* module, unsigned reason, void* reserved);
using QSelectInitFunction = void();
using QSelectUnInitFunction = void();
using SelectCmdFunction = void();
using SelectCmdExFunction = void(long* selectionSet);
/// "QSelectRun": gathers, matches and hands over as the command does, without a dialog.
/// `selectionSet` is the starting selection, or null for the host's own.
using QSelectRunFunction = void(const Request& request, long* selectionSet, Result& result);
/// "QSelectListTypes": the types in the current space, or in the selection set if that is not null.
using QSelectListTypesFunction = void(long* selectionSet, TypeVisitor visitor, void* context);
/// "QSelectListEntities": the entities in the current space, or in the selection set, in its order.
using QSelectListEntitiesFunction = void(long* selectionSet, EntityVisitor visitor, void* context);
/// "QSelectListProperties": the properties of an entity with their values, in the module's order.
/// With `onlyKey` that one alone, listed or not.
using QSelectListPropertiesFunction = void(KdDbObjectId entity, const wchar_t* onlyKey,
                                           bool withChoices, PropertyVisitor visitor,
                                           void* context);
/// "QSelectLastRequest": the request of the last run that came to its end, by the dialog or by
/// "QSelectRun". The visitor gets null if there was none, or if no text that a person could type
/// stands for its value.
using QSelectLastRequestFunction = void(RequestVisitor visitor, void* context);
/// "QSelectTolerance": within what reals count as equal, by the drawing's linear precision.
using QSelectToleranceFunction = double();
/// "QSelectHoldDrawing": with true the program promises that nothing changes in the drawings until
/// the next call, so what the functions above gather from one space is gathered once. Each call
/// drops what was gathered before. At first nothing is promised.
using QSelectHoldDrawingFunction = void(bool hold);
/// "QSelectWatchDialog": the watcher is called when the dialog comes up, after each change that the
/// user makes to its filter, and when it is gone. It may ask for a preview then or later. Null:
/// nobody watches any more.
using QSelectWatchDialogFunction = void(DialogWatcher watcher, void* context);
/// "QSelectPreview": goes on testing the candidates against the filter that the open dialog shows,
/// for about so many milliseconds, and tells how far that has come. Begins anew after a change of
/// the filter. Selects and prints nothing and shows no message.
using QSelectPreviewFunction = void(int milliseconds, PreviewVisitor visitor, void* context);
/// "QSelectListOperators": the operators that values of a kind offer, in the dialog's order.
using QSelectListOperatorsFunction = void(int restype, OperatorVisitor visitor, void* context);

} // namespace quick_select
