#include "ipp.h"

IppStatus ippInit()
{
    return ippStsNoErr; // the version of each function was already chosen when the program was loaded
}
