#! /usr/local/bin/perl
##############################################################################
# Variable Definition

$ext = "html";
$passwd = "café€";
$username = "Zoë";

###########################################################################

&parse_form;

Print "Content-type: text/html\n\n";

###########################################################################
# Check Password
###########################################################################

   if (!($FORM{'password'} eq $passwd && $FORM{'username'} eq $username)) {
      &error(bad_combo);
   }
   else {
     print "<html><head><meta http-equiv=\"Refresh\" Content=\"0\;url=http://www.example.com/in.html\"></head>\n";
       print "<body></body></html>";
   }
#######################
# Parse Form Contents

sub parse_form {

   # Read input
   read(STDIN, $buffer, $ENV{'CONTENT_LENGTH'});

   # Split the name-value pairs
   @pairs = split(/&/, $buffer);

   foreach $pair (@pairs) {
      ($name, $value) = split(/=/, $pair);

      # Remove/convert plus signs and %-encoding
      $value =~ tr/+/ /;
      $value =~ s/%([a-fA-F0-9][a-fA-F0-9])/pack("C", hex($1))/eg;

      $FORM{$name} = $value;
   }
}

######################
# Error handling

sub error {
   $error = $_[0];
   if ($error eq 'bad_combo') {
      print "<html><head><title>Bad Username - Password Combination</title></head>\n";
      print "<body><center><font face=\"Arial, Helvetica\" size=2><font size=5>Bad Username - Password Combination</font></center>\n";
      print "<HR>\n\n";
      print "You entered and invalid username password pair.  Please try again.<p>\n\n";
      print "<FORM METHOD=\"POST\" ACTION=\"http://www.example.com/cgi-bin/password.cgi\">\n";
      print "<P ALIGN=CENTER>USERNAME: <INPUT TYPE=Text NAME=\"UserName\"><BR>\n";
      print "PASSWORD: <INPUT TYPE=Text NAME=\"Password\"><BR>\n";
      print "<INPUT TYPE=Submit NAME=\"submit\" VALUE=\"Login\"><BR>\n";
      print "</P></FORM>\n";
      print "</FONT>\n";
      print "</BODY></HTML>\n";
   }
   exit;
}
