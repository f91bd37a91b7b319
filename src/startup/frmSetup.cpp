// frmSetup
