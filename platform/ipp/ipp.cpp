#include "ipp.h"

IppStatus ippInit()
{
    return ippStsNoErr; // each function's version for this processor was chosen when the program was loaded
}
