// Whether the program uses OLE.
#pragma once

// At the end of the program: what AfxOleInit began.
void LeaveOle();
