box1=[ 1 2 ];
box2= [         ]; 
box6=box2
