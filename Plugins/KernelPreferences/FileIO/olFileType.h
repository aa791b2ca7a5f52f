#pragma once

#include <array>
#include <cstddef>

/// The file types that the host knows by number, and the names that the keys of their settings begin with.
namespace olFileType
{

enum Id {
    CatiaV4,
    CatiaV5,
    Wire,
    Iges,
    NX,
    Step,
    Draftix,
    Partwright,
    SolidWorks,
    SolidEdge,
    Stl,
    ProEngineer,
    Jt,
    Rhino,
    GenericCAD,
    Kbx,
    Dgn,
    PlmXml,
    Osb,
    Opb,
    Wrl,
    Mrb,
    Obj,
    Ply,
    Gltf,
    Collada,
    Parasolid,
    Acis,
    Vda,
    Cgr,
    Pts,
    E57,
    Usd,
};

// Stored settings live under these names: they stay as they are.
inline constexpr std::array names{
    "CatiaV4",   "CatiaV5", "Wire", "IGES", "NX",    "STEP", "Draftix", "Partwright", "SolidWorks",
    "SolidEdge", "STL",     "ProE", "JT",   "Rhino", "BCAD", "KBX",     "DGN",        "PLMXML",
    "OSB",       "OPB",     "WRL",  "MRB",  "OBJ",   "PLY",  "GLTF",    "Collada",    "Parasolid",
    "ACIS",      "VDA",     "CGR",  "PTS",  "E57",   "USD",
};
static_assert(names.size() == Usd + 1, "one name for each file type");

/// "undefined" for a number that no file type has.
constexpr const char *name(int id) { return id >= 0 && id < int(names.size()) ? names[std::size_t(id)] : "undefined"; }

} // namespace olFileType
