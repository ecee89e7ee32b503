// Prints the two lines that the first question for the English mode prints.

#include "QVRGenI18NUtils.h"

int main() { QVRGenI18NUtils::Instance()->GetInitialLocales(); }
