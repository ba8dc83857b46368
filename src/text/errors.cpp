// SPDX-License-Identifier: MIT
#include "errors.h"

#include "codepage.h"

namespace vatro {

using namespace literals;

std::string_view Meaning(Failure failure) {
    switch (failure) {
        case Failure::InvalidCall:
            return "Ugyldigt procedurekald"_t;
        case Failure::Overflow:
            return "Overløb"_t;
        case Failure::IndexOutOfRange:
            return "Indeks uden for det tilladte område"_t;
        case Failure::DivisionByZero:
            return "Division med nul"_t;
        case Failure::TypeMismatch:
            return "Typerne passer ikke sammen"_t;
        case Failure::BadFileNumber:
            return "Forkert filnummer"_t;
        case Failure::FileNotFound:
            return "Filen blev ikke fundet"_t;
        case Failure::BadFileMode:
            return "Forkert filtilstand"_t;
        case Failure::FileAlreadyOpen:
            return "Filen er allerede åben"_t;
        case Failure::FileExists:
            return "Filen findes allerede"_t;
        case Failure::DiskFull:
            return "Disken er fuld"_t;
        case Failure::InputPastEnd:
            return "Læsning efter filens slutning"_t;
        case Failure::DeviceUnavailable:
            return "Enheden findes ikke"_t;
        case Failure::PermissionDenied:
            return "Adgang nægtet"_t;
        case Failure::DiskNotReady:
            return "Disken er ikke klar"_t;
        case Failure::PathFileAccess:
            return "Fejl ved adgang til sti eller fil"_t;
        case Failure::PathNotFound:
            return "Stien blev ikke fundet"_t;
        case Failure::Cancelled:
            return "Dialogen blev annulleret"_t;
    }
    return {};
}

}  // namespace vatro
