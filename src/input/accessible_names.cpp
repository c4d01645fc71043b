#include "input/accessible_names.h"

namespace varno {

std::string accessibleName(Control control) {
    const std::string number = std::to_string(control.index);
    switch (control.field) {
    case Field::rubrik:
        return "Rubrik";
    case Field::nfack:
    case Field::spin1:
        return "Antal fack";
    case Field::spv:
        return "Spännvidd (m), fack " + number;
    case Field::ptjl:
        return "Plattjocklek (m), fack " + number;
    case Field::plast:
        return "Permanent last (kN/m2), fack " + number;
    case Field::flast:
        return "Variabel last (kN/m2), fack " + number;
    case Field::upl:
        return "Upplagsbredd (m), stöd " + number;
    case Field::konsv:
        return "Konsol vänster (m)";
    case Field::konsh:
        return "Konsol höger (m)";
    case Field::lambdaG:
        return "Partialkoefficient för permanent last";
    case Field::ksi:
        return "Reduktionsfaktor för permanent last";
    case Field::lambdaQ:
        return "Partialkoefficient för variabel last";
    case Field::psi0:
        return "Kombinationsfaktor psi 0";
    case Field::psi1:
        return "Faktor för frekvent värde, psi 1";
    case Field::psi2:
        return "Faktor för kvasipermanent värde, psi 2";
    case Field::ktack:
        return "Täckande betongskikt i överkant (mm)";
    case Field::duarm:
        return "Avstånd till tyngdpunkt för armering i underkant (mm)";
    case Field::overhojning:
        return "Överhöjning (mm)";
    case Field::initiell:
        return "Initiell nedböjning, L genom";
    case Field::tillkommande:
        return "Tillkommande nedböjning, L genom";
    case Field::lokt:
        return "Lastkategori";
    case Field::btg:
        return "Betongklass";
    case Field::aok:
        return "Stålsort, armering i överkant";
    case Field::dok:
        return "Stångdiameter, armering i överkant";
    case Field::auk:
        return "Stålsort, armering i underkant";
    case Field::duk:
        return "Stångdiameter, armering i underkant";
    case Field::brandk:
        return "Brandteknisk klass";
    default:
        return {};
    }
}

} // namespace varno
