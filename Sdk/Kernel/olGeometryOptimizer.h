#pragma once

#include "Utilities/olExport.h"

#include <vector>

/// Tessellates imported surfaces anew. Lengths are millimetres.
class ORLO_SDK_EXPORT olGeometryOptimizer
{
public:
    /// How far apart edges may lie and still count as joined.
    static void setTopologyTolerance(float tolerance);

    /// 0 finds the topology anew, 1 keeps what there is, 2 does without.
    static void setTopologyMethod(int method);

    static void setOffsetFactor(float factor);

    /// The tolerances to choose from, each above 0.
    static void setTessellationQuality(const std::vector<float> &tolerances);

    /// Whether faces that point the wrong way are turned.
    static void setCheckOrientation(bool check);
};
