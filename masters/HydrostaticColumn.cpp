#include "masters/HydrostaticColumn.h"

const std::array<HydrostaticColumn, HydrostaticColumn::Count> &HydrostaticColumn::All()
{
    static constexpr std::array<HydrostaticColumn, Count> columns {{
        {"Hyd. Draft", "TMD", "m", "Enter Hydrostatic draft in metres.", 0, 100, 8,
         "Value of Hyd. Draft can only be a positive number greater than 0 and less than 100."},
        {"Displacement", "Displacement", "t", "Enter corresponding displacement in Metric Tonnes.", 0, 1000000, 3,
         "Value of Displacement can only be a positive number greater than 0 and less than 1000000."},
        {"TPC", "TPC", "t/cm", "Enter Tonnes per centimeter immersion.", 0, 10000, 3,
         "Value of TPC can only be a positive number  greater than 0 and less than 10000."},
        {"MCTC", "MCTC", "t·m/cm", "Enter corresponding MCTC.", 0, 100000, 3,
         "Value of MCTC can only be a positive number  greater than 0 and less than 100000."},
        {"LCB", "LCB", "m",
         "Enter Longitudinal center of buoyancy measured from midship. Distances forward of midship are -ve.", -1000,
         1000, 3, "Value of LCB can only be a positive number  greater than -1000 and less than 1000."},
        {"LCF", "LCF", "m",
         "Enter Longitudinal center of floatation measured from midship. Distances forward of midship are -ve.", -10000,
         10000, 3, "Value of LCF can only be a positive number  greater than -10000 and less than 10000."},
        {"KM", "KM", "m", "Enter corresponding transverse KM.", 0, 1000, 3,
         "Value of KM can only be a positive number greater than 0 and less than 1000."},
        {"KB", "KB", "m", "Enter corresponding KB.", 0, 1000, 3,
         "Value of KB can only be a positive number  greater than 0 and less than 1000."},
    }};
    return columns;
}
