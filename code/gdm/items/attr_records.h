#ifndef GDM_ITEMS_ATTR_RECORDS_H
#define GDM_ITEMS_ATTR_RECORDS_H

/// @file
/// The records that the library shares with the host. Their layout is part of the interface.

#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#    include <assert.h>
#endif

// Anonymous structs, a compiler extension, make fields that share their bytes plain members of the record.
#ifdef __clang__
#    pragma clang diagnostic push
#    pragma clang diagnostic ignored "-Wgnu-anonymous-struct"
#    pragma clang diagnostic ignored "-Wnested-anon-types"
#endif

/// Type of an attribute, with the same codes in both records. Other codes are unknown: no value is shown or stored.
enum DmlAttrType {
    DmlAttrBoolean = 0, ///< Carried or not; true or false.
    DmlAttrText = 1,    ///< Free text, with choices if the definition has some.
    DmlAttrOption = 2,  ///< One entry of a list.
    DmlAttrInteger = 3, ///< A whole number between two limits.
    DmlAttrFloat = 4    ///< A number between two limits, with units if the definition has some.
};

/// Definition of one attribute. The dictionary owns it and all its strings, and keeps it valid as long as any item
/// points to it. The library only reads it.
struct DmlAttrDef {
    int32_t type;                  ///< A DmlAttrType.
    char name[65];                 ///< Internal name, NUL-terminated.
    char prompt[65];               ///< Name to display, NUL-terminated.
    char group[66];                ///< Group name, NUL-terminated.
    uint32_t entityMask;           ///< Entities that can carry the attribute; bits of EntityMask.
    unsigned char reserved204[12]; ///< Neither read nor written.

    /// The default value, by type.
    __extension__ union {
        int32_t defaultBool;     ///< Nonzero means true.
        const char *defaultText; ///< Null if there is no default.
        int32_t defaultOption;   ///< Index into optionList; negative if there is no default.
        __extension__ struct {
            int32_t defaultInt; ///< An integer always has a default.
            int32_t intMin;     ///< Lower limit of an integer, in the upper half of the default's 8 bytes.
        };
        float defaultFloat; ///< In the units of the definition. Single precision, unlike the limits.
    };

    /// The limits or the choices, by type.
    __extension__ union {
        int32_t intMax; ///< Upper limit of an integer.
        __extension__ struct {
            double floatMin; ///< Lower limit of a float, in the units of the definition.
            double floatMax; ///< Upper limit; the library does not compare it with the lower one.
        };
        __extension__ struct {
            const char *const *optionList; ///< Entries of an option, or choices of a text.
            int32_t optionCount; ///< Number of entries; 0 or less, like a null list, if there are none.
        };
    };

    int32_t unitsClass;           ///< Float only: units of limits, default and stored values; -1 for none.
    unsigned char reserved244[4]; ///< Neither read nor written.
    int32_t textChoiceCount;      ///< Text only: at least 1 if the editor lists optionList as choices.
    unsigned char reserved252[4]; ///< Neither read nor written.
};

/// Condition on one attribute. Each record belongs to one AttrFilterLWI. All bytes are zero until a definition or a
/// condition is stored.
struct DmlAttrValue {
    unsigned char reserved0[4]; ///< Zero.
    int32_t type;               ///< Copy of DmlAttrDef::type.
    unsigned char reserved8[4]; ///< Zero.
    int32_t isSet;              ///< Nonzero if the user has set a condition.

    /// The condition, by type; a boolean has only isSet.
    __extension__ union {
        char text[200]; ///< NUL-terminated, in the local 8-bit encoding.
        int32_t option; ///< Index into DmlAttrDef::optionList; -1 if nothing is chosen.
        __extension__ struct {
            int32_t intLow;  ///< Least value that satisfies the condition.
            int32_t intHigh; ///< Greatest value; editors never store less than intLow.
        };
        __extension__ struct {
            double floatLow;  ///< Least value, in the units of the definition under all display units.
            double floatHigh; ///< Greatest value; editors never store less than floatLow.
        };
    };

    unsigned char reserved216[8]; ///< Zero.
};

#ifdef __clang__
#    pragma clang diagnostic pop
#endif

#ifndef __cplusplus
typedef enum DmlAttrType DmlAttrType;
typedef struct DmlAttrDef DmlAttrDef;
typedef struct DmlAttrValue DmlAttrValue;
#endif

// C has it from C11 on, as a macro.
#if defined(__cplusplus) || defined(static_assert)
static_assert(sizeof(void *) == 8, "the records are laid out for 64-bit pointers");

static_assert(offsetof(DmlAttrDef, type) == 0, "DmlAttrDef::type");
static_assert(offsetof(DmlAttrDef, name) == 4, "DmlAttrDef::name");
static_assert(offsetof(DmlAttrDef, prompt) == 69, "DmlAttrDef::prompt");
static_assert(offsetof(DmlAttrDef, group) == 134, "DmlAttrDef::group");
static_assert(offsetof(DmlAttrDef, entityMask) == 200, "DmlAttrDef::entityMask");
static_assert(offsetof(DmlAttrDef, defaultBool) == 216, "DmlAttrDef::defaultBool");
static_assert(offsetof(DmlAttrDef, defaultText) == 216, "DmlAttrDef::defaultText");
static_assert(offsetof(DmlAttrDef, defaultOption) == 216, "DmlAttrDef::defaultOption");
static_assert(offsetof(DmlAttrDef, defaultInt) == 216, "DmlAttrDef::defaultInt");
static_assert(offsetof(DmlAttrDef, intMin) == 220, "DmlAttrDef::intMin");
static_assert(offsetof(DmlAttrDef, defaultFloat) == 216, "DmlAttrDef::defaultFloat");
static_assert(offsetof(DmlAttrDef, intMax) == 224, "DmlAttrDef::intMax");
static_assert(offsetof(DmlAttrDef, floatMin) == 224, "DmlAttrDef::floatMin");
static_assert(offsetof(DmlAttrDef, floatMax) == 232, "DmlAttrDef::floatMax");
static_assert(offsetof(DmlAttrDef, optionList) == 224, "DmlAttrDef::optionList");
static_assert(offsetof(DmlAttrDef, optionCount) == 232, "DmlAttrDef::optionCount");
static_assert(offsetof(DmlAttrDef, unitsClass) == 240, "DmlAttrDef::unitsClass");
static_assert(offsetof(DmlAttrDef, textChoiceCount) == 248, "DmlAttrDef::textChoiceCount");
static_assert(sizeof(DmlAttrDef) == 256, "DmlAttrDef");

static_assert(offsetof(DmlAttrValue, type) == 4, "DmlAttrValue::type");
static_assert(offsetof(DmlAttrValue, isSet) == 12, "DmlAttrValue::isSet");
static_assert(offsetof(DmlAttrValue, text) == 16, "DmlAttrValue::text");
static_assert(offsetof(DmlAttrValue, option) == 16, "DmlAttrValue::option");
static_assert(offsetof(DmlAttrValue, intLow) == 16, "DmlAttrValue::intLow");
static_assert(offsetof(DmlAttrValue, intHigh) == 20, "DmlAttrValue::intHigh");
static_assert(offsetof(DmlAttrValue, floatLow) == 16, "DmlAttrValue::floatLow");
static_assert(offsetof(DmlAttrValue, floatHigh) == 24, "DmlAttrValue::floatHigh");
static_assert(sizeof(DmlAttrValue) == 224, "DmlAttrValue");
#endif

#endif
