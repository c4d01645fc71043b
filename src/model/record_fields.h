#pragma once

#include <string_view>
#include <tuple>
#include <type_traits>

#include "model/design_case.h"

namespace varno {

/// A field of the record and its name.
template <typename Type>
struct RecordField {
    const char* name;
    Type DesignCase::*field;
};
template <typename Type>
RecordField(const char*, Type DesignCase::*) -> RecordField<Type>;

/// The fields of the record that a design input file knows.
inline constexpr std::tuple fileFields{
    RecordField{"loadCode", &DesignCase::loadCode},
    RecordField{"safetyClass", &DesignCase::safetyClass},
    RecordField{"nfack", &DesignCase::nfack},
    RecordField{"spv", &DesignCase::spv},
    RecordField{"ptjl", &DesignCase::ptjl},
    RecordField{"upl", &DesignCase::upl},
    RecordField{"plast", &DesignCase::plast},
    RecordField{"flast", &DesignCase::flast},
    RecordField{"konsv", &DesignCase::konsv},
    RecordField{"konsh", &DesignCase::konsh},
    RecordField{"lokt", &DesignCase::lokt},
    RecordField{"lambdaG", &DesignCase::lambdaG},
    RecordField{"ksi", &DesignCase::ksi},
    RecordField{"lambdaQ", &DesignCase::lambdaQ},
    RecordField{"psi0", &DesignCase::psi0},
    RecordField{"psi1", &DesignCase::psi1},
    RecordField{"psi2", &DesignCase::psi2},
    RecordField{"lastkomb", &DesignCase::lastkomb},
    RecordField{"brukskomb", &DesignCase::brukskomb},
    RecordField{"btg", &DesignCase::btg},
    RecordField{"aok", &DesignCase::aok},
    RecordField{"dok", &DesignCase::dok},
    RecordField{"kavko", &DesignCase::kavko},
    RecordField{"ktack", &DesignCase::ktack},
    RecordField{"auk", &DesignCase::auk},
    RecordField{"duk", &DesignCase::duk},
    RecordField{"duarm", &DesignCase::duarm},
    RecordField{"brandk", &DesignCase::brandk},
    RecordField{"brandb", &DesignCase::brandb},
    RecordField{"kutak", &DesignCase::kutak},
    RecordField{"overhojning", &DesignCase::overhojning},
    RecordField{"initiell", &DesignCase::initiell},
    RecordField{"tillkommande", &DesignCase::tillkommande},
    RecordField{"reservedValue", &DesignCase::reservedValue},
    RecordField{"nllast", &DesignCase::nllast},
    RecordField{"llfnr", &DesignCase::llfnr},
    RecordField{"avst", &DesignCase::avst},
    RecordField{"lllast", &DesignCase::lllast},
};

/// The others, for what keeps the whole of the record.
inline constexpr std::tuple freeLineLoadFields{
    RecordField{"nllastf", &DesignCase::nllastf},
    RecordField{"llfnrf", &DesignCase::llfnrf},
    RecordField{"avstf", &DesignCase::avstf},
    RecordField{"lllastf", &DesignCase::lllastf},
};

/// Calls `visit(name, member)` for each field in turn.
template <typename Visitor>
constexpr void forEachField(const auto& fields, Visitor visit) {
    std::apply([&](const auto&... field) { (visit(field.name, field.field), ...); }, fields);
}
template <typename Visitor>
constexpr void forEachRecordField(Visitor visit) {
    forEachField(fileFields, visit);
    forEachField(freeLineLoadFields, visit);
}

template <typename Type>
constexpr std::string_view recordFieldName(Type DesignCase::*wanted) {
    std::string_view name;
    forEachRecordField([&](const char* candidate, auto field) {
        if constexpr (std::is_same_v<decltype(field), Type DesignCase::*>) {
            if (field == wanted) name = candidate;
        }
    });
    return name;
}

} // namespace varno
