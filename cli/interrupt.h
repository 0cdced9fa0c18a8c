#pragma once

/// Makes Ctrl-C a wish to stop the run at its next step. A second Ctrl-C ends the program at once.
void CatchInterrupts();

/// True once the user has pressed Ctrl-C.
bool WasInterrupted();
