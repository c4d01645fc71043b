#pragma once

#include <compare>

namespace varno {

/// The controls of the main input form, by the program's own names.
enum class Field {
    // Text boxes
    rubrik,
    nfack,
    spv,
    ptjl,
    plast,
    flast,
    upl,
    konsv,
    konsh,
    lambdaG,
    ksi,
    lambdaQ,
    psi0,
    psi1,
    psi2,
    ktack,
    duarm,
    overhojning,
    initiell,
    tillkommande,
    // Lists
    lokt,
    btg,
    aok,
    dok,
    auk,
    duk,
    brandk,
    // Option groups (the index is the option, from 1) and the check box
    lastkomb,
    brukskomb,
    brandb,
    kutak,
    shkl,
    shklpl,
    pkl,
    shklfi,
    shkldk,
    shkleu,
    kavko,
    // The rest
    spin1,     ///< the spin button beside nfack
    loadFrame, ///< the frame that names the load rules
};

/// One control: a field, and the element of a control array (spans from 1, supports from 0, options from 1).
struct Control {
    Field field;
    int index = 0;
    auto operator<=>(const Control&) const = default;
};

} // namespace varno
