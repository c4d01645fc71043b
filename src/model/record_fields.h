#pragma once

#include <tuple>

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

/// Every field of the record, for what keeps the whole of it and not only what a design input file holds.
inline constexpr std::tuple recordFields{
    RecordField{"nfack", &DesignCase::nfack},
    RecordField{"spv", &DesignCase::spv},
    RecordField{"ptjl", &DesignCase::ptjl},
    RecordField{"upl", &DesignCase::upl},
    RecordField{"plast", &DesignCase::plast},
    RecordField{"flast", &DesignCase::flast},
    RecordField{"konsv", &DesignCase::konsv},
    RecordField{"konsh", &DesignCase::konsh},
    RecordField{"loadCode", &DesignCase::loadCode},
    RecordField{"safetyClass", &DesignCase::safetyClass},
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
    RecordField{"nllastf", &DesignCase::nllastf},
    RecordField{"llfnrf", &DesignCase::llfnrf},
    RecordField{"avstf", &DesignCase::avstf},
    RecordField{"lllastf", &DesignCase::lllastf},
};

/// Calls `visit(name, member)` for each field in turn.
template <typename Visitor>
constexpr void forEachRecordField(Visitor visit) {
    std::apply([&](const auto&... field) { (visit(field.name, field.field), ...); }, recordFields);
}

} // namespace varno
