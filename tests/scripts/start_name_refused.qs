# Cancelling the name box counts as the empty answer: the login it is.
user "Mia Muster"
answer cancel
start
expect box input "Name?" "Gib Deinen Namen ein:"
expect host.UserName == "Mia Muster"
close
expect ended
